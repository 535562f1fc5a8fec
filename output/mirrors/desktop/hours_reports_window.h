#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "output/mirrors/hours_reports.h"

#include <memory>

namespace winvrx {

class EmployeePicker;
class Field;
class OutputChoice;

/// The hours reports: employees at the left, the period and what to make of it at the right.
class HoursReportsWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `reports` outlives the window; it is read again when the window opens. `openWorkMonth`
    /// returns when its screen is closed.
    HoursReportsWindow(HoursReports& reports, std::function<void(QWidget* parent)> openWorkMonth,
                       QWidget* parent = nullptr);

  private:
    void buildCommands();
    void buildClosingButtons();
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildChoices();
    [[nodiscard]] QWidget* buildPeriod(QWidget* parent);
    [[nodiscard]] QWidget* buildExplanation(QWidget* parent);

    void showPeriod();
    void showContext();
    /// Takes the days as typed; false, with a finding at the field, when they are no period.
    [[nodiscard]] bool takePeriod();
    /// The same, and says so.
    [[nodiscard]] bool requireTakenPeriod();
    void make(bool (HoursReports::*report)(const PageProgress& progress));
    /// "Espelho de Ponto" of everyone, or "Folha Manual" of the employee selected.
    void printMirrors();
    void printManualSheet();
    /// The mirrors on the two sides of cards.
    void printSides();
    void exportSums();

    HoursReports& reports_;
    std::function<void(QWidget* parent)> openWorkMonth_;
    EmployeePicker* employees_ = nullptr;
    Field* first_ = nullptr;
    Field* last_ = nullptr;
    OutputChoice* output_ = nullptr;
};

/// What the hours reports open things with. All outlive the entry.
struct HoursEntryDesk {
    TextEditor& editor;
    Browser& browser;
    ReportEngine& engine;
    const Printers& printers;
    std::shared_ptr<const RotationCalendar> rotation;
};

/// Opens the screen of the hours reports.
void openHoursReports(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent);

/// Shows the work month at a glance: bars of everyone's hours.
void showHoursSummary(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent);

/// The commands of the main window: the reports, and the mirror, which the same screen prints.
[[nodiscard]] MenuEntries hoursEntries(const Workplace& at, const HoursEntryDesk& desk);

}  // namespace winvrx
