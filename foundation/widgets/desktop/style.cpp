#include "foundation/widgets/desktop/style.h"

#include "foundation/widgets/desktop/colors.h"
#include "foundation/widgets/desktop/svg_icon.h"

#include <QAbstractItemView>
#include <QIcon>
#include <QPainter>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeView>

namespace winvrx::look {

namespace {

constexpr qreal kCorner = 3;
constexpr int kRowGap = 4;

bool has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state & flag;
}

QPen outline(const QStyleOption& option) {
    const QColor accent = color(Tint::Accent, option.palette);
    const bool focused = has(option, QStyle::State_HasFocus);
    return {focused ? accent : option.palette.color(QPalette::Mid), focused ? 2.0 : 1.0};
}

QRectF inside(const QRect& area, const QPen& pen) {
    const qreal half = pen.widthF() / 2;
    return QRectF(area).adjusted(half, half, -half, -half);
}

void drawFrame(const QStyleOption& option, QPainter& painter, const QBrush& ground) {
    const QPen pen = outline(option);
    painter.setPen(pen);
    painter.setBrush(ground);
    painter.drawRoundedRect(inside(option.rect, pen), kCorner, kCorner);
}

/// The square or circle of an indicator; filled with the accent when it is on.
void drawIndicator(const QStyleOption& option, QPainter& painter, bool round) {
    const bool enabled = has(option, QStyle::State_Enabled);
    const bool on = has(option, QStyle::State_On);
    const QColor quiet = color(Tint::Quiet, option.palette);
    const QColor accent = enabled ? color(Tint::Accent, option.palette) : quiet;
    const QPen pen(on || has(option, QStyle::State_HasFocus) ? accent : quiet, 1.5);
    const QRectF area = inside(option.rect, pen);
    painter.setPen(pen);
    painter.setBrush(on ? QBrush(accent) : option.palette.brush(QPalette::Base));
    const qreal corner = round ? area.width() / 2 : kCorner;
    painter.drawRoundedRect(area, corner, corner);
    if (!on) return;
    const QPointF center = area.center();
    const qreal unit = area.width() / 4;
    painter.setPen(
        QPen(option.palette.color(QPalette::Base), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (round) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::Base));
        painter.drawEllipse(center, unit * 0.8, unit * 0.8);
    } else {
        const QPointF tick[] = {center + QPointF(-unit, 0),
                                center + QPointF(-unit * 0.3, unit * 0.8),
                                center + QPointF(unit, -unit * 0.8)};
        painter.drawPolyline(tick, 3);
    }
}

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (auto* bar = qobject_cast<QScrollBar*>(widget))
        bar->setAccessibleName(bar->orientation() == Qt::Horizontal
                                   ? QStringLiteral("Rolagem horizontal")
                                   : QStringLiteral("Rolagem vertical"));
    if (auto* view = qobject_cast<QAbstractItemView*>(widget))
        QMetaObject::invokeMethod(view, &QAbstractItemView::doItemsLayout, Qt::QueuedConnection);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (element) {
        case PE_PanelLineEdit: {
            const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (frame && frame->lineWidth > 0)
                drawFrame(*option, *painter, option->palette.brush(QPalette::Base));
            else
                QProxyStyle::drawPrimitive(element, option, painter, widget);
            break;
        }
        case PE_Frame:
        case PE_FrameLineEdit:
            drawFrame(*option, *painter, Qt::NoBrush);
            break;
        case PE_IndicatorCheckBox:
            drawIndicator(*option, *painter, false);
            break;
        case PE_IndicatorRadioButton:
            drawIndicator(*option, *painter, true);
            break;
        default:
            painter->setRenderHint(QPainter::Antialiasing, false);
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ItemViewItem && qobject_cast<const QTreeView*>(widget))
        size.rheight() += kRowGap;
    return size;
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* more) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
    const auto own = [](const QString& name, Tint tint) {
        return QIcon(new SvgIconEngine(name, tint));
    };
    switch (icon) {
        case SP_MessageBoxInformation:
            return own(QStringLiteral("information"), Tint::Accent);
        case SP_MessageBoxQuestion:
            return own(QStringLiteral("help"), Tint::Accent);
        case SP_MessageBoxWarning:
            return own(QStringLiteral("warning"), Tint::Warning);
        case SP_MessageBoxCritical:
            return own(QStringLiteral("failure"), Tint::Holiday);
        default:
            return QProxyStyle::standardIcon(icon, option, widget);
    }
}

}  // namespace winvrx::look
