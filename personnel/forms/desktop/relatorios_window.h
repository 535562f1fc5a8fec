#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/forms/relatorios.h"

class QLabel;
class QListWidget;

namespace winvrx {

class EmployeePicker;
class OptionGroup;
class RegisterList;

/// The window of the reports screen: keywords and catalogue at the left, at the right what the
/// chosen form is for, for whom and where it goes.
class RelatoriosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `reports` outlives the window; it is read again when the window opens. `openWorkMonth`
    /// returns when its screen is closed.
    RelatoriosWindow(Relatorios& reports, std::function<void(QWidget* parent)> openWorkMonth,
                     QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildKeywords(QWidget* parent);
    [[nodiscard]] QWidget* buildForms(QWidget* parent);
    [[nodiscard]] QWidget* buildEmployees(QWidget* parent);
    void buildCommands();
    void buildClosingButtons();

    void showForms();
    void showChosen();
    void showContext();
    [[nodiscard]] QString activityAt(const Employee& employee) const;
    void print(bool all);

    Relatorios& reports_;
    std::function<void(QWidget* parent)> openWorkMonth_;
    QListWidget* keywords_ = nullptr;
    RegisterList* forms_ = nullptr;
    QLabel* purpose_ = nullptr;
    EmployeePicker* employees_ = nullptr;
    OptionGroup* face_ = nullptr;
    OptionGroup* output_ = nullptr;
};

/// The reports' command of the main window. The engine outlives the entry.
[[nodiscard]] MenuEntry formsEntry(const Workplace& at, ReportEngine& engine);

}  // namespace winvrx
