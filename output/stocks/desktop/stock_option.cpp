#include "output/stocks/desktop/stock_option.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "output/stocks/desktop/card_pictures.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace winvrx {

namespace {

constexpr int kCorner = 8;
constexpr double kUsualScale = 0.95;
constexpr double kCompactScale = 0.55;
constexpr double kTallestCard = 210;  // millimetres
constexpr int kWidth = 110;
constexpr int kSide = 6;

int pictureHeight(double scale) {
    return static_cast<int>(kTallestCard * scale);
}

}  // namespace

StockOption::StockOption(const CardStock& stock, CardPictures& pictures, QWidget* parent)
    : QRadioButton(toQt(trimmed(stock.displayName)), parent),
      stock_(stock),
      pictures_(pictures),
      scale_(kUsualScale) {
    setAccessibleName(toQt(stock.code) + QLatin1Char(' ') + text());
    setAccessibleDescription(pictures.description(stock) + pictures.fault(stock));
    setToolTip(accessibleDescription());
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StockOption::setCompact(bool compact) {
    scale_ = compact ? kCompactScale : kUsualScale;
    updateGeometry();
    update();
}

QSize StockOption::sizeHint() const {
    return {kWidth, heightAt(scale_)};
}

int StockOption::usualHeight() const {
    return heightAt(kUsualScale);
}

int StockOption::heightAt(double scale) const {
    const QFontMetrics hint(look::font(look::TextSize::Hint));
    return pictureHeight(scale) + fontMetrics().height() + hint.height() + 3 * look::kGap;
}

bool StockOption::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

void StockOption::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrame(painter);
    const QRect inside = rect().adjusted(kSide, look::kGap, -kSide, -look::kGap);
    paintCard(painter, QRect(inside.topLeft(), QSize(inside.width(), pictureHeight(scale_))));
    paintTexts(painter, inside.adjusted(0, pictureHeight(scale_) + look::kSmallGap, 0, 0));
}

void StockOption::paintFrame(QPainter& painter) const {
    const bool accented = isChecked() || hasFocus() || underMouse();
    const QColor accent = look::color(look::Tint::Accent, palette());
    painter.setPen(QPen(accented ? accent : palette().color(QPalette::Mid),
                        isChecked() || hasFocus() ? 2 : 1));
    const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setBrush(palette().base());
    painter.drawRoundedRect(area, kCorner, kCorner);
    if (!isChecked()) return;
    painter.setBrush(look::wash(look::Tint::Accent, palette()));
    painter.drawRoundedRect(area, kCorner, kCorner);
}

void StockOption::paintCard(QPainter& painter, const QRect& area) const {
    const QPixmap card = pictures_.card(stock_, {scale_, devicePixelRatioF()});
    if (card.isNull()) {
        painter.setPen(look::color(look::Tint::Warning, palette()));
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                         QStringLiteral("⚠ Layout com erro"));
        return;
    }
    const QSize size = card.deviceIndependentSize().toSize();
    painter.drawPixmap(area.center().x() - size.width() / 2, area.bottom() - size.height(), card);
}

/// The name over the option's mark and the code.
void StockOption::paintTexts(QPainter& painter, const QRect& area) const {
    QFont nameFont = font();
    if (isChecked()) nameFont.setWeight(QFont::DemiBold);
    const QFontMetrics name(nameFont);
    painter.setFont(nameFont);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(area.left(), area.top(), area.width(), name.height()), Qt::AlignVCenter,
                     name.elidedText(text(), Qt::ElideRight, area.width()));
    const QRect below = area.adjusted(0, name.height(), 0, 0);
    QStyleOptionButton mark;
    initStyleOption(&mark);
    const int side = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &mark, this);
    mark.rect = QRect(below.left(), below.center().y() - side / 2, side, side);
    style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &mark, &painter, this);
    painter.setFont(look::font(look::TextSize::Hint));
    painter.setPen(look::color(look::Tint::Quiet, palette()));
    painter.drawText(below.adjusted(side + look::kGap, 0, 0, 0), Qt::AlignVCenter,
                     toQt(stock_.code));
}

}  // namespace winvrx
