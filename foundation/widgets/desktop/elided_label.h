#pragma once

#include <QLabel>

namespace winvrx {

/// A label that no text drives wider than the screen. A line that has no room ends in "…" and
/// stands, as far as `tipOf` goes, in the tool tip.
class ElidedLabel : public QLabel {
  public:
    using QLabel::QLabel;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] bool isCut() const;
};

/// Any text as a tool tip of bounded size: its first lines and letters, "…" for the rest, and no
/// line that is endless. A usual tip stays as it is.
[[nodiscard]] QString tipOf(const QString& text);

}  // namespace winvrx
