#pragma once

#include "report/desktop/layout.h"

#include <QWidget>

namespace winvrx {

class LayoutPainter;

/// A sheet of paper on the screen, painted by the same code as paper and PDF.
class PageView : public QWidget {
    Q_OBJECT

  public:
    /// `painter` outlives the view.
    explicit PageView(LayoutPainter& painter, QWidget* parent = nullptr);
    /// Paints through another painter from now on.
    void paintWith(LayoutPainter& painter);
    /// From the layout's units to the view's dots.
    [[nodiscard]] double scale() const;

    void showPage(PageText rows, int side);
    /// 1 shows the sheet in its real size.
    void setZoom(double zoom);
    /// The zoom at which the whole sheet fits into `room`.
    [[nodiscard]] double zoomToFit(QSize room) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QSizeF realSize() const;

    LayoutPainter* painter_;
    PageText rows_;
    int side_ = 1;
    double zoom_ = 1;
};

}  // namespace winvrx
