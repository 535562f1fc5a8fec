#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/desk/spreadsheet.h"
#include "foundation/desk/text_editor.h"
#include "foundation/register/company.h"
#include "foundation/register/employee_list.h"
#include "output/cards/card_run.h"
#include "output/mirrors/mirror_period.h"
#include "report/printers.h"
#include "report/report_engine.h"
#include "timecard/punches/rotation_calendar.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kHoursReportName = "RelHorasExtras";
inline constexpr std::string_view kHoursWorkbookName = "RelHorasExtras.xlsx";
inline constexpr std::string_view kMirrorTextName = "RelEspelho";

/// What the hours reports work with beside the desk. All outlive the screen.
struct HoursReportsDesk {
    TextEditor& editor;
    Spreadsheet& spreadsheet;
    Browser& browser;
    ReportEngine& engine;
    const Printers& printers;
    const RotationCalendar& rotation;
};

/// The hours reports of a period: as text, as a spreadsheet, the sums for a payroll bureau, and the
/// month at a glance. Of those whom the list shows, in file order; each is read when his turn
/// comes, and nothing is written of a run that fails or is cancelled.
class HoursReports {
  public:
    HoursReports(const Workplace& at, const HoursReportsDesk& desk);

    /// Reads company, employees and work month again; the period becomes the work month where none
    /// was chosen yet.
    void load();

    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const Company& company() const { return company_; }
    [[nodiscard]] std::optional<WorkMonth> month() const { return month_; }

    [[nodiscard]] const std::optional<DayPeriod>& period() const { return period_; }
    /// The work month, or its closing period; says that a month is needed where none is chosen.
    void chooseMonth();
    void chooseClosing();
    /// Days as typed; false, and nothing taken, for what is no range of at most a year.
    [[nodiscard]] bool choosePeriod(std::string_view first, std::string_view last);
    /// "Informe o Período do Relatório!"
    void refusePeriod();

    /// "Deseja Gerar o Relatório Em EXCEL ou ARQUIVO TEXTO ?": writes it and has it opened.
    [[nodiscard]] bool report(const PageProgress& progress = {});
    /// The mirror of the selected employee as text.
    [[nodiscard]] bool showMirrorText(std::optional<std::size_t> position);
    /// The sums as CSV into `file`.
    [[nodiscard]] bool exportSums(const std::filesystem::path& file,
                                  const PageProgress& progress = {});
    /// "ESPELHO DE PONTO" of everyone in the list, a page each; whoever has no record is named and
    /// left out. True when all were printed.
    [[nodiscard]] bool printMirrors(const PrintChoices& choices, const PrintRun& run);
    /// "FOLHA MANUAL DE PONTO" of the selected employee: the same page without times.
    [[nodiscard]] bool printManualSheet(std::optional<std::size_t> position,
                                        const PrintChoices& choices, const PrintRun& run);
    /// The work month's mirrors on the two sides of cards (stock "LadosPonto"), one card after the
    /// other, each side confirmed; a prompt declined ends the run, and a card with one side only is
    /// told of. Without prompts to the preview or a PDF file. The period becomes the work month.
    /// `tellLine` may be empty.
    [[nodiscard]] bool printSides(const PrintChoices& choices, const PrintRun& run,
                                  const std::function<void(const std::string&)>& tellLine = {});
    /// "RESUMO DO MÊS": bars of everyone's hours, what needs attention first, to the preview.
    [[nodiscard]] bool showOverview(const PageProgress& progress = {});

  private:
    using People = std::vector<Employee>;

    [[nodiscard]] bool requirePeriod();
    /// The employee whom the list shows at `position`; nullptr once the operator has been told.
    [[nodiscard]] const Employee* requireSelected(std::optional<std::size_t> position);
    /// Those who are in the rotation schedule where their scale asks for it; of the others the
    /// operator is told.
    [[nodiscard]] People withoutMissingGroups(const People& people);
    /// Those of the list who can be reported; empty when the operator has been told why none can.
    [[nodiscard]] People confirmPeople();
    /// Hands each sheet to `take`; false when the operator cancelled or nothing is on record.
    [[nodiscard]] bool forEachSheet(const PageProgress& progress,
                                    const std::function<void(MirrorSheet)>& take);
    [[nodiscard]] bool writeText(const PageProgress& progress);
    [[nodiscard]] bool writeWorkbook(const PageProgress& progress);
    [[nodiscard]] MirrorPeriod mirrorPeriod() const;
    /// "Diretório Inválido p/ Impressão!" on any drive but "C".
    [[nodiscard]] bool requirePrintingDrive();
    /// Those of whom the period has a record.
    [[nodiscard]] People recordedOf(const People& people);
    [[nodiscard]] CardBatch sidesBatch(const PrintChoices& choices);
    [[nodiscard]] bool printBothSides(const CardBatch& batch, const Employee& employee);
    struct MirrorForm;
    /// Asks, and prints the form of those whom `whom` then names.
    [[nodiscard]] bool print(const MirrorForm& form, const PrintChoices& choices,
                             const PrintRun& run, const std::function<People()>& whom);
    [[nodiscard]] CardBatch batchOf(const MirrorForm& form, const People& people,
                                    const PrintChoices& choices);

    Workplace at_;
    HoursReportsDesk desk_;
    EmployeeList list_;
    Company company_;
    std::optional<WorkMonth> month_;
    std::optional<DayPeriod> period_;
};

}  // namespace winvrx
