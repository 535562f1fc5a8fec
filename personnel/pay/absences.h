#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"
#include "timecard/month/business_days.h"

#include <vector>

namespace winvrx {

/// Days of pay, of thirty in a month, that are lost: for absences, or for weekly rests.
[[nodiscard]] Reckoning daysLost(Money salary, int days, std::string words);

/// How many rest days the absences of a month lose: of each week from Monday to Sunday with one,
/// its Sunday and its holidays (Lei 605/1949, art. 6º; Decreto 27.048/1949, art. 11). A rest day
/// outside the month counts as well: it is lost in the month of the absence.
[[nodiscard]] int restDaysLost(const std::vector<Date>& absences, const MonthSettings& month);

/// Business days and rest days of a month, together all of its days. Saturdays are rest days where
/// the company says so.
[[nodiscard]] MonthDayCounts countPayDays(const PayrollLaw& law, const MonthSettings& month);

}  // namespace winvrx
