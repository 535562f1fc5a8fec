#pragma once

#include "timecard/hours/hours.h"
#include "timecard/month/closing_period.h"

#include <optional>
#include <vector>

// An employee's hours from the records: for reports, mirrors and payroll.

namespace winvrx {

/// Which days a sum goes over: the work month's own, or those that it closes.
enum class HoursPeriod { CalendarMonth, ClosingPeriod };

/// All that the hours of some days in succession are counted from.
struct EmployeeHours {
    DayPeriod period;
    std::vector<PunchLine> lines;  ///< one a day of the period, in date order
    WorkTerms terms;

    [[nodiscard]] HourTotals totals(std::optional<HalfMonth> half = std::nullopt) const {
        return periodHours(lines, period.first, terms, half);
    }
};

/// The days of a closing period are taken from its own record, ".prd", and those that it lacks from
/// the punches of its months. The overtime figures are the employee's own of the
/// work month, or that month's; each day goes by the holidays of its own month. A missing schedule
/// asks for nothing. nullopt when none of the records of punches exists. Throws FileFault.
[[nodiscard]] std::optional<EmployeeHours> loadEmployeeHours(const Store& store,
                                                             const CompanyCode& company,
                                                             const Employee& employee,
                                                             const MonthSettings& settings,
                                                             HoursPeriod which);

/// "01001-03-2024.prd": the punch record's name with another end.
[[nodiscard]] std::string closingFileName(const EmployeeKey& key, WorkMonth month);

}  // namespace winvrx
