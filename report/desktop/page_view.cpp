#include "report/desktop/page_view.h"

#include "report/desktop/layout_painter.h"

#include <QPainter>

#include <algorithm>

namespace winvrx {

namespace {

constexpr double kMillimetresPerInch = kLayoutUnitsPerInch / kLayoutUnitsPerMillimetre;

}  // namespace

PageView::PageView(LayoutPainter& painter, QWidget* parent) : QWidget(parent), painter_(&painter) {
    setAccessibleName(QStringLiteral("Folha"));
    setZoom(1);
}

void PageView::paintWith(LayoutPainter& painter) {
    painter_ = &painter;
    setZoom(zoom_);
    update();
}

double PageView::scale() const {
    return layoutScale(logicalDpiX()) * zoom_;
}

void PageView::showPage(PageText rows, int side) {
    rows_ = std::move(rows);
    side_ = side;
    update();
}

void PageView::setZoom(double zoom) {
    zoom_ = zoom;
    setFixedSize((realSize() * zoom_).toSize());
}

double PageView::zoomToFit(QSize room) const {
    const QSizeF real = realSize();
    return std::min(room.width() / real.width(), room.height() / real.height());
}

QSizeF PageView::realSize() const {
    return painter_->layout().page * logicalDpiX() / kMillimetresPerInch;
}

/// Paper is white and ink is black whatever the palette.
void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale(), scale());
    painter_->paint(painter, rows_, side_);
}

}  // namespace winvrx
