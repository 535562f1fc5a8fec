#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/payroll/folha_screen.h"

class QComboBox;
class QLabel;
class QToolButton;
class QTreeWidget;

namespace winvrx {

class EmployeePicker;
class PaySheetPanel;

/// What the payroll's window asks to be printed.
enum class FolhaPaper { Payroll, PaySlips, Receipt, ReceiptWithMemos, Advance };

/// The payroll's window: employees at the left, the events of the one in hand in the middle, hours
/// and bases at the right. `screen` outlives it.
class FolhaWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit FolhaWindow(FolhaScreen& screen, QWidget* parent = nullptr);

    /// Shows again what the screen holds.
    void refresh();
    /// Turns to the employee, where the list has him.
    void turnTo(const std::string& code);

  signals:
    /// Whoever listens shows it, opens the screen again and refreshes this window.
    void monthRequested();
    /// The same, for the employee in hand.
    void timeCardRequested();
    /// How the company computes; the facts of the employee in hand.
    void optionsRequested();
    void factsRequested();
    /// The events of the company or, with `own`, of the employee in hand.
    void eventsRequested(bool own);
    /// The whole month in one view.
    void overviewRequested();
    void paperRequested(winvrx::FolhaPaper paper);

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildSheet();
    [[nodiscard]] QWidget* buildRuns(QWidget* parent);
    [[nodiscard]] QWidget* buildFigures();
    void buildCommands();
    void buildPapers();
    void buildClosingButtons();

    void choose(std::size_t position);
    /// ENTER on an employee: to his events, or what keeps them away.
    void enterSheet();
    void takeAmount(int line, const QString& amount);
    void saveAll();
    void requestEvents(bool own);
    void showEmployee();
    void showHours();
    void showBases();
    void showMemo(int line);

    FolhaScreen& screen_;
    EmployeePicker* employees_ = nullptr;
    QComboBox* runs_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* standing_ = nullptr;
    PaySheetPanel* sheet_ = nullptr;
    QTreeWidget* hours_ = nullptr;
    QTreeWidget* bases_ = nullptr;
    QLabel* warnings_ = nullptr;
    QToolButton* reopen_ = nullptr;
};

}  // namespace winvrx
