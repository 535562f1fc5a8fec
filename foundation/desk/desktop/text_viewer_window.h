#pragma once

#include "foundation/widgets/desktop/screen_window.h"

class QPagedPaintDevice;
class QPlainTextEdit;

namespace winvrx {

/// Shows a fixed-width text report and prints it: for desktops without a text editor.
class TextViewerWindow : public ScreenWindow {
    Q_OBJECT

  public:
    TextViewerWindow(const QString& title, const QString& text, QWidget* parent = nullptr);

    /// The text in the report's letters, page after page.
    void printOn(QPagedPaintDevice& paper) const;

  private:
    void print();

    QPlainTextEdit* text_;
};

}  // namespace winvrx
