#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "output/mirrors/hours_reports.h"

namespace winvrx {

class EmployeePicker;
class Field;
class OutputChoice;
class Progress;

/// How far a report is.
[[nodiscard]] Progress hoursProgress(QWidget* parent);

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
    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* buildPeriod(QWidget* parent);
    [[nodiscard]] QWidget* buildExplanation(QWidget* parent);

    void showPeriod();
    void showContext();
    /// Takes the days as typed; false, with a finding at the field, when they are no period.
    [[nodiscard]] bool takePeriod();
    /// The same, and says so.
    [[nodiscard]] bool requireTakenPeriod();
    template <typename Make>
    void make(Make&& make);
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

}  // namespace winvrx
