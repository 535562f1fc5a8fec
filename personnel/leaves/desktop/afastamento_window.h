#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/register/employee.h"
#include "foundation/widgets/desktop/screen_window.h"

#include <functional>
#include <optional>

class QLabel;
class QLayout;
class QToolButton;
class QTreeWidget;

namespace winvrx {

class Afastamento;
class EmployeePicker;
class LeaveFormPanel;
class ReportEngine;
class TextEditor;
class YearStrip;

/// The window of the leave screen: employees at the left; the leaves of the one chosen with his
/// year, and the fields, at the right. `command` outlives it.
class AfastamentoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit AfastamentoWindow(Afastamento& command, QWidget* parent = nullptr);

    /// Shows again what the command holds.
    void refresh();

  signals:
    /// Whoever listens shows the work month, opens the command again and refreshes this window.
    void monthRequested();
    /// Whoever listens shows the absences of the company's month, on a sheet or as text.
    void absencesRequested(bool asText);
    /// Whoever listens shows the figures of the end of the contract of the employee chosen.
    void terminationRequested();

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildLeaves();
    [[nodiscard]] QLayout* buildList(QWidget* part);
    void buildCommands();

    void chooseEmployee(std::size_t position);
    void chooseLeave(int row);
    void beginOrAdd();
    void change();
    /// Shows what a command came to, and where it ended for a field.
    void showOutcome(bool done);
    void showEmployee();
    void showLeaves();
    void showState();

    Afastamento& command_;
    EmployeePicker* employees_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* contradiction_ = nullptr;
    QTreeWidget* leaves_ = nullptr;
    YearStrip* year_ = nullptr;
    LeaveFormPanel* form_ = nullptr;
    QToolButton* activation_ = nullptr;
};

/// Where the month's absences and the end of a contract are shown. All outlive the entry.
struct LeavesDesk {
    ReportEngine& engine;
    TextEditor& editor;
    /// Returns when the figures of the employee's end of contract are closed.
    std::function<void(QWidget* parent, const Employee& employee)> openTermination;
};

/// Opens the leave screen, on `inHand` where an employee is chosen, and returns when it is closed.
void openLeaves(const Workplace& at, const LeavesDesk& desk, QWidget* parent,
                const std::optional<EmployeeCode>& inHand = std::nullopt);

/// The leaves' command of the main window.
[[nodiscard]] MenuEntry leavesEntry(const Workplace& at, const LeavesDesk& desk);

}  // namespace winvrx
