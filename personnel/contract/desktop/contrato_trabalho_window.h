#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/contract/contrato_trabalho.h"

class QLabel;

namespace winvrx {

class ContractForm;
class EmployeePicker;

/// Opens the correction letters of electronic invoices over a window.
using OpenLetters = std::function<void(QWidget* parent)>;

/// The window of the contract screen: employees at the left, the contract of the one chosen at the
/// right. `command` outlives it; `openLetters` shows the correction letters over it.
class ContratoTrabalhoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    ContratoTrabalhoWindow(ContratoTrabalho& command, OpenLetters openLetters,
                           QWidget* parent = nullptr);

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildContract();
    void buildCommands();

    void chooseEmployee(std::size_t position);
    void refresh();
    void showContract();
    void showState();
    void save();
    void remove();
    void print(ReportOutput output);
    void showText();
    void calibrate();
    void followRefusal();

    ContratoTrabalho& command_;
    OpenLetters openLetters_;
    EmployeePicker* employees_ = nullptr;
    QLabel* name_ = nullptr;
    ContractForm* form_ = nullptr;
};

/// The contracts' command of the main window. What `desk` refers to outlives the entry.
[[nodiscard]] MenuEntry contractEntry(const Workplace& at, const ContractDesk& desk,
                                      const OpenLetters& openLetters);

}  // namespace winvrx
