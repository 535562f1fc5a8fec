#pragma once

#include <QScrollArea>

namespace winvrx {

/// Holds the body of a window, and scrolls it where the window is smaller than the body can be.
class BodyArea : public QScrollArea {
  public:
    BodyArea(QWidget* body, QWidget* parent);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void fit();
};

/// Makes the window as large as the body in it needs, but no larger than its screen.
void fitToScreen(QWidget& window, const QScrollArea& body);

}  // namespace winvrx
