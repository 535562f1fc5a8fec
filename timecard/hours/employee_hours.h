#pragma once

#include "timecard/hours/hours.h"
#include "timecard/month/closing_period.h"

#include <optional>
#include <vector>

// An employee's hours from the records: for reports, mirrors and payroll.

namespace winvrx {

/// Which days are counted: from the first to the last of the month, or from the day of "Iníciar
/// todo dia:" in the month before to the day before it in the work month.
enum class HoursPeriod { CalendarMonth, ClosingPeriod };

/// The days of a period with their punches, and what their hours depend on besides.
struct EmployeeHours {
    DayPeriod period;
    std::vector<PunchLine> lines;  ///< one line for each day of the period, in date order
    WorkTerms terms;

    [[nodiscard]] HourTotals totals(std::optional<HalfMonth> half = std::nullopt) const {
        return periodHours(lines, period.first, terms, half);
    }
};

/// Reads what an employee's hours are counted from.
///
/// A calendar month is read from its punch record. A closing period is read from its own record
/// (".prd"); a day that has no line there is read from the punch record of its month. The overtime
/// percentages are the employee's own for the work month where he has them, else the month's. A day
/// is a holiday when it is ticked in its own month. An employee without a schedule has no standard
/// hours. nullopt when no record of punches exists. Throws FileFault.
[[nodiscard]] std::optional<EmployeeHours> loadEmployeeHours(const Store& store,
                                                             const CompanyCode& company,
                                                             const Employee& employee,
                                                             const MonthSettings& settings,
                                                             HoursPeriod which);

}  // namespace winvrx
