#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "report/report_request.h"

#include <string>

class QLabel;

namespace winvrx {

class ContractForm;
class ContratoTrabalho;
class EmployeePicker;

/// The window of the contract screen: employees at the left, the contract of the one chosen at the
/// right. `command` outlives it.
class ContratoTrabalhoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit ContratoTrabalhoWindow(ContratoTrabalho& command, QWidget* parent = nullptr);

  signals:
    /// Whoever listens shows the correction letters of electronic invoices.
    void correctionLetterRequested();

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
    /// Takes what stands in the field with the focus as if it were left.
    void finishTyping();
    void followRefusal();

    ContratoTrabalho& command_;
    EmployeePicker* employees_ = nullptr;
    QLabel* name_ = nullptr;
    ContractForm* form_ = nullptr;
};

}  // namespace winvrx
