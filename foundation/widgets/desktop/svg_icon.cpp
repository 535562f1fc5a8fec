#include "foundation/widgets/desktop/svg_icon.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace winvrx::look {

namespace {

QColor strokeColor(QIcon::Mode mode, const std::optional<Tint>& tint) {
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::WindowText);
    if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
    return tint ? color(*tint, palette) : palette.color(QPalette::WindowText);
}

}  // namespace

SvgIconEngine::SvgIconEngine(const QString& name, std::optional<Tint> tint) : tint_(tint) {
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    if (file.open(QIODevice::ReadOnly)) svg_ = file.readAll();
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) {
    QByteArray colored = svg_;
    const QColor stroke = strokeColor(mode, tint_);
    colored.replace("currentColor", stroke.name().toLatin1());
    QSvgRenderer renderer(colored);
    painter->save();
    painter->setOpacity(stroke.alphaF());
    renderer.render(painter, QRectF(rect));
    painter->restore();
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}

}  // namespace winvrx::look
