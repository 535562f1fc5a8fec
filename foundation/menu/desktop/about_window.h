#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/widgets/desktop/screen_window.h"

namespace winvrx {

/// "Sobre": version, where records and log lie, and the licences of what the program is made of.
class SobreWindow final : public ScreenWindow {
    Q_OBJECT

  public:
    /// `log` is the path of the log file.
    SobreWindow(const Workplace& at, Browser& browser, std::string log, QWidget* parent);

  private:
    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* place(const QString& caption, const QString& name,
                                 const std::string& path, QWidget* parent);
    void open(const std::string& path);

    Workplace at_;
    Browser& browser_;
    std::string log_;
};

/// The command of the main window that opens it. The arguments outlive it.
[[nodiscard]] MenuEntry aboutEntry(const Workplace& at, Browser& browser, const std::string& log);

}  // namespace winvrx
