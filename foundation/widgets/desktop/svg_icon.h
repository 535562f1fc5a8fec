#pragma once

#include "foundation/widgets/desktop/colors.h"

#include <QByteArray>
#include <QIconEngine>

#include <optional>

namespace winvrx::look {

/// Draws an icon of resources/icons. Its strokes are "currentColor", which becomes the tint, or
/// the palette's text colour, when it is painted.
class SvgIconEngine final : public QIconEngine {
  public:
    SvgIconEngine(const QString& name, std::optional<Tint> tint);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(*this); }

  private:
    QByteArray svg_;
    std::optional<Tint> tint_;
};

}  // namespace winvrx::look
