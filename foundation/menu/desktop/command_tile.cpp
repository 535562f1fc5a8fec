#include "foundation/menu/desktop/command_tile.h"

#include "foundation/widgets/desktop/look.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace winvrx {

namespace {

constexpr int kCorner = 8;
constexpr int kLeastLetters = 24;

}  // namespace

CommandTile::CommandTile(const MenuTile& shown, QWidget* parent)
    : QAbstractButton(parent), key_(shown.key.toString(QKeySequence::NativeText)) {
    look::name(*this, QLatin1String(shown.name), shown.title);
    setText(shown.title);
    setIcon(look::icon(QLatin1String(shown.icon), look::Tint::Accent));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CommandTile::setStateLine(const QString& text) {
    stateLine_ = text;
    setAccessibleDescription(text);
    setToolTip(text);
    update();
}

void CommandTile::setSpacing(const TileSpacing& spacing) {
    spacing_ = spacing;
    updateGeometry();
    update();
}

void CommandTile::setNext(bool next) {
    next_ = next;
    update();
}

QSize CommandTile::minimumSizeHint() const {
    const int lines = QFontMetrics(look::font(look::TextSize::Heading)).height() +
                      QFontMetrics(look::font(look::TextSize::Hint)).height();
    return {fontMetrics().averageCharWidth() * kLeastLetters, lines + spacing_.padding};
}

QSize CommandTile::sizeHint() const {
    const QFontMetrics letters(look::font(look::TextSize::Heading));
    const int title = letters.size(Qt::TextShowMnemonic, text()).width();
    return {textLeft() + title + spacing_.margin, minimumSizeHint().height()};
}

void CommandTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool accented = isEnabled() && (next_ || hasFocus() || underMouse());
    const QColor border =
        accented ? look::color(look::Tint::Accent, palette()) : palette().color(QPalette::Mid);
    const qreal pen = isEnabled() && (next_ || hasFocus()) ? 2 : 1;
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCorner, kCorner);
    if (isEnabled()) painter.fillPath(shape, palette().color(QPalette::Base));
    if (accented && (next_ || isDown() || underMouse()))
        painter.fillPath(shape, look::wash(look::Tint::Accent, palette()));
    painter.setPen(QPen(border, pen, isEnabled() ? Qt::SolidLine : Qt::DashLine));
    painter.drawPath(shape);
    const QRect iconArea(spacing_.margin, (height() - spacing_.icon) / 2, spacing_.icon,
                         spacing_.icon);
    icon().paint(&painter, iconArea, Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    paintTexts(painter, rect().adjusted(textLeft(), 0, -spacing_.margin, 0));
}

void CommandTile::paintTexts(QPainter& painter, const QRect& area) const {
    const QFont titleFont = look::font(look::TextSize::Heading);
    const QFont hintFont = look::font(look::TextSize::Hint);
    const int titleHeight = QFontMetrics(titleFont).height();
    const int hintHeight = QFontMetrics(hintFont).height();
    const int top = (height() - titleHeight - hintHeight) / 2;
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRect titleRow(area.left(), top, area.width(), titleHeight);
    QRect stateRow(area.left(), top + titleHeight, area.width(), hintHeight);
    painter.setFont(titleFont);
    painter.setPen(palette().color(group, QPalette::WindowText));
    QRect title;
    painter.drawText(titleRow, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text(),
                     &title);
    const QFontMetrics hintMetrics(hintFont);
    const int keyWidth = hintMetrics.horizontalAdvance(key_) + look::kGap;
    const bool besideTitle = title.width() + keyWidth <= area.width();
    painter.setFont(hintFont);
    painter.setPen(isEnabled() ? look::color(look::Tint::Quiet, palette())
                               : palette().color(group, QPalette::WindowText));
    painter.drawText(besideTitle ? titleRow : stateRow, Qt::AlignRight | Qt::AlignVCenter, key_);
    if (!besideTitle) stateRow.setRight(stateRow.right() - keyWidth);
    painter.drawText(stateRow, Qt::AlignLeft | Qt::AlignVCenter,
                     hintMetrics.elidedText(stateLine_, Qt::ElideRight, stateRow.width()));
}

}  // namespace winvrx
