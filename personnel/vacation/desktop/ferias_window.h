#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/vacation/vacation_form.h"

#include <map>

class QCheckBox;
class QLabel;
class QTreeWidget;

namespace winvrx {

class EmployeePicker;
class Ferias;
class Field;

/// The window of the vacation periods: employees at the left; the periods of the one chosen, and
/// the fields of a vacation with what its dates come to, at the right. `command` outlives it.
class FeriasWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit FeriasWindow(Ferias& command, QWidget* parent = nullptr);

    /// Shows again what the command holds.
    void refresh();

  signals:
    /// Whoever listens shows the work month, opens the command again and refreshes this window.
    void monthRequested();
    /// Whoever listens prints the notice of the vacation that is chosen.
    void noticeRequested();
    void provisionsRequested();

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildPeriods();
    [[nodiscard]] QWidget* buildForm(QWidget* part);
    void buildCommands();

    void chooseEmployee(std::size_t position);
    void choosePeriod(int row);
    void take(VacationInput input);
    /// Shows what a command came to, and where it ended for a field.
    void showOutcome(bool done);
    void showEmployee();
    void showRows();
    void showForm();
    void showNotes();
    void showState();

    Ferias& command_;
    EmployeePicker* employees_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* dueText_ = nullptr;
    QTreeWidget* rows_ = nullptr;
    std::map<VacationInput, Field*> fields_;
    QCheckBox* thirteenth_ = nullptr;
    QLabel* notes_ = nullptr;
};

}  // namespace winvrx
