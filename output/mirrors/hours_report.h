#pragma once

#include "foundation/desk/text_report.h"
#include "foundation/register/company.h"
#include "output/mirrors/hour_columns.h"

#include <optional>
#include <string>
#include <vector>

// The reports of fixed width: hours and absences, their summary, and leaves, in one file; and the
// mirror as text.

namespace winvrx {

/// A leave that meets the period, or whose days cannot be read.
struct ReportedLeave {
    std::string description;
    std::optional<LeavePeriod> period;  ///< nullopt: cannot be read
};
[[nodiscard]] std::vector<ReportedLeave> reportedLeaves(const MirrorSheet& sheet);

/// "RELATÓRIO DE HORAS EXTRAS/FALTAS", "RESUMO DAS HORAS" and "RELATÓRIO DE AFASTAMENTO".
class HoursReport {
  public:
    /// `rules` title the columns and say how hours are shown.
    HoursReport(const DayPeriod& period, const OvertimeRules& rules);

    void add(const MirrorSheet& sheet);
    /// The whole file.
    [[nodiscard]] std::vector<std::string> lines() &&;

  private:
    OvertimeRules rules_;
    std::vector<HourColumn> dayColumns_;
    std::vector<HourColumn> summaryColumns_;
    TextReport days_;
    TextReport summary_;
    TextReport leaves_;
};

/// The mirror of one employee: company and employee, a line a day, sums and notes.
[[nodiscard]] std::vector<std::string> mirrorText(const Company& company, const MirrorSheet& sheet);

}  // namespace winvrx
