#include "output/labels/desktop/sheet_view.h"

#include "foundation/widgets/desktop/look.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace winvrx {

namespace {

constexpr QSizeF kPaperShape(210, 297);
constexpr double kEdge = 0.03;  ///< of the paper's width, outside the labels
constexpr double kLabelGap = 1.5;
constexpr int kLinesHigh = 12;

}  // namespace

SheetView::SheetView(const QString& objectName, QWidget* parent) : QWidget(parent) {
    look::name(*this, objectName, QStringLiteral("Primeira etiqueta livre"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setToolTip(QStringLiteral("Clique na primeira etiqueta livre, ou ande até ela com as setas."));
}

void SheetView::showSheet(const LabelSheet& sheet, std::size_t first, std::size_t labels) {
    sheet_ = sheet;
    first_ = first;
    labels_ = labels;
    setAccessibleDescription(QStringLiteral("Etiqueta %1 de %2")
                                 .arg(static_cast<qulonglong>(first_ + 1))
                                 .arg(static_cast<qulonglong>(sheet_.labels())));
    update();
}

QSize SheetView::sizeHint() const {
    const double height = fontMetrics().height() * 1.5 * kLinesHigh;
    return QSizeF(height * kPaperShape.width() / kPaperShape.height(), height).toSize();
}

QSize SheetView::minimumSizeHint() const {
    return sizeHint() / 2;
}

QRectF SheetView::paper() const {
    const QSizeF room = QSizeF(size()) - QSizeF(2, 2);
    const QSizeF shown = kPaperShape.scaled(room, Qt::KeepAspectRatio);
    return {QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2), shown};
}

QRectF SheetView::areaOf(std::size_t place) const {
    const QRectF whole = paper();
    const double edge = whole.width() * kEdge;
    const QRectF inside = whole.adjusted(edge, edge, -edge, -edge);
    const QSizeF one(inside.width() / static_cast<double>(sheet_.columns),
                     inside.height() / static_cast<double>(sheet_.rows));
    const auto column = static_cast<double>(place % sheet_.columns);
    const auto row = static_cast<double>(place / sheet_.columns);
    return QRectF(inside.topLeft() + QPointF(column * one.width(), row * one.height()), one)
        .adjusted(kLabelGap, kLabelGap, -kLabelGap, -kLabelGap);
}

void SheetView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(look::color(look::Tint::Accent, palette()), 2)
                              : QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().brush(QPalette::Base));
    painter.drawRect(paper());
    for (std::size_t place = 0; place < sheet_.labels(); ++place)
        paintLabel(painter, place);
}

void SheetView::paintLabel(QPainter& painter, std::size_t place) const {
    const bool used = place < first_;
    const bool printed = !used && place < first_ + labels_;
    const QColor accent = look::color(look::Tint::Accent, palette());
    const QColor quiet = look::color(look::Tint::Quiet, palette());
    QColor ground = accent;
    ground.setAlphaF(0.16F);
    painter.setPen(QPen(place == first_ ? accent : palette().color(QPalette::Mid),
                        place == first_ ? 2.0 : 1.0));
    painter.setBrush(used      ? QBrush(palette().color(QPalette::Mid), Qt::BDiagPattern)
                     : printed ? QBrush(ground)
                               : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(areaOf(place), 2, 2);
    if (used) return;
    painter.setPen(printed ? palette().color(QPalette::Text) : quiet);
    painter.drawText(areaOf(place), Qt::AlignCenter,
                     QString::number(static_cast<qulonglong>(place + 1)));
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    for (std::size_t place = 0; place < sheet_.labels(); ++place)
        if (areaOf(place).contains(event->position())) emit picked(place);
}

void SheetView::keyPressEvent(QKeyEvent* event) {
    const auto across = static_cast<long>(sheet_.columns);
    const auto last = static_cast<long>(sheet_.labels()) - 1;
    const auto at = static_cast<long>(first_);
    const std::array<std::pair<int, long>, 6> places = {{{Qt::Key_Left, at - 1},
                                                         {Qt::Key_Right, at + 1},
                                                         {Qt::Key_Up, at - across},
                                                         {Qt::Key_Down, at + across},
                                                         {Qt::Key_Home, 0},
                                                         {Qt::Key_End, last}}};
    const auto* const found = std::ranges::find(places, event->key(), &std::pair<int, long>::first);
    if (found == places.end()) return QWidget::keyPressEvent(event);
    const long place = found->second;
    if (place >= 0 && place <= last) emit picked(static_cast<std::size_t>(place));
}

}  // namespace winvrx
