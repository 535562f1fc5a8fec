#pragma once

#include "foundation/widgets/desktop/screen_window.h"

class QUrl;

namespace winvrx {

/// Shows the help page: for desktops without a browser.
class HelpWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `section` is the page's file, its fragment a name in the page or none.
    HelpWindow(const QUrl& section, QWidget* parent);
};

}  // namespace winvrx
