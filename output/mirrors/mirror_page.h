#pragma once

#include "foundation/register/company.h"
#include "output/mirrors/mirror_period.h"
#include "report/report_pages.h"

#include <string>
#include <vector>

// What stands on a mirror's page: company and employee, one row a day, the sums, the notes and the
// places of the signatures. Drawn by the layouts "espelhos.rpt" and "espelho.rpt".

namespace winvrx {

/// Days on a page; a longer period has a page a month.
inline constexpr int kMirrorLines = 31;

/// The columns of `Tabela_base` for a page.
[[nodiscard]] const std::vector<std::string>& mirrorColumns();

/// The periods of the pages that an employee has.
[[nodiscard]] std::vector<DayPeriod> mirrorPages(const DayPeriod& period);

/// A row for each day of `sheet`, which has at most kMirrorLines. A day's hours of none stay blank.
[[nodiscard]] ReportRows mirrorRows(const Company& company, const MirrorSheet& sheet);

/// The same page to be filled in by hand: days, contracted times, and why a day is free; no times,
/// hours, sums or notes.
[[nodiscard]] ReportRows manualRows(const Company& company, const MirrorSheet& sheet);

}  // namespace winvrx
