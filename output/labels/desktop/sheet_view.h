#pragma once

#include "output/labels/label_sheet.h"

#include <QRectF>
#include <QWidget>

#include <cstddef>

namespace winvrx {

/// A drawn sheet of labels on which the first free label is picked, with the mouse or the arrow
/// keys. Labels before it are used up, those after it show what of the run comes onto the sheet.
class SheetView : public QWidget {
    Q_OBJECT

  public:
    explicit SheetView(const QString& objectName, QWidget* parent = nullptr);

    /// `labels` are those of the run, copies included.
    void showSheet(const LabelSheet& sheet, std::size_t first, std::size_t labels);
    /// The label's area, counted row by row from 0.
    [[nodiscard]] QRectF areaOf(std::size_t place) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void picked(std::size_t place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QRectF paper() const;
    void paintLabel(QPainter& painter, std::size_t place) const;

    LabelSheet sheet_ = kLabelSheets.front();
    std::size_t first_ = 0;
    std::size_t labels_ = 0;
};

}  // namespace winvrx
