#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "tools/internet/web_ni.h"

#include <array>
#include <memory>

class QCheckBox;
class QLabel;
class QPushButton;

namespace winvrx {

class WebNiWindow final : public ScreenWindow {
    Q_OBJECT

  public:
    WebNiWindow(WebNi& screen, QWidget* parent);

  private:
    struct Part {
        QLabel* state = nullptr;
        QLabel* problems = nullptr;
        QPushButton* block = nullptr;
        QPushButton* release = nullptr;
    };

    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* buildPart(WebSwitch which, QWidget* parent);
    void addCommands();
    void change(WebSwitch which, bool blocked);
    void showState(WebSwitch which);
    void showStates();

    WebNi& screen_;
    std::array<Part, kWebSwitches.size()> parts_;
    QCheckBox* keeps_ = nullptr;
};

/// The command of the main window that opens it. The arguments outlive it.
[[nodiscard]] MenuEntry internetEntry(const Workplace& at,
                                      std::shared_ptr<BrowserSettings> browsers);

}  // namespace winvrx
