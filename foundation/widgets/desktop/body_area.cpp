#include "foundation/widgets/desktop/body_area.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QStyle>

namespace winvrx {

BodyArea::BodyArea(QWidget* body, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(body);
}

void BodyArea::resizeEvent(QResizeEvent* event) {
    fit();
    QScrollArea::resizeEvent(event);
}

bool BodyArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) fit();
    return QScrollArea::eventFilter(watched, event);
}

/// A resizable area would give a body with wrapped lines all the height that it would like.
void BodyArea::fit() {
    const QSize least = widget()->minimumSizeHint();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    QSize room = maximumViewportSize();
    if (least.height() > room.height()) room.rwidth() -= bar;
    if (least.width() > room.width()) room.rheight() -= bar;
    widget()->resize(room.expandedTo(least));
}

void fitToScreen(QWidget& window, const QScrollArea& body) {
    window.layout()->activate();
    const QSize missing = body.widget()->minimumSizeHint() - body.size();
    QSize room = window.screen()->availableSize();
    room.rheight() -= window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    window.resize((window.size() + missing.expandedTo({0, 0})).boundedTo(room));
}

}  // namespace winvrx
