#pragma once

#include "foundation/values/date.h"
#include "personnel/pay/payroll_settings.h"
#include "personnel/pay/reckoning.h"

#include <algorithm>
#include <optional>
#include <string>

namespace winvrx {

/// The days of a month that are paid: from `first` to `last`, both in the same month, less the days
/// away without pay (illness from the sixteenth day on, vacation, suspension).
struct MonthPart {
    Date first{};
    Date last{};
    int daysAway = 0;

    [[nodiscard]] WorkMonth month() const { return monthOf(first); }
    [[nodiscard]] int calendarDays() const {
        return std::max(0, dayNumber(last) - dayNumber(first) + 1 - daysAway);
    }
    [[nodiscard]] bool isWhole() const { return calendarDays() == daysIn(month()); }
};

[[nodiscard]] MonthPart wholeMonth(WorkMonth month);
/// What of `month` lies between admission and dismissal, if any; no dismissal is nullopt.
[[nodiscard]] std::optional<MonthPart> employedPart(WorkMonth month, Date admission,
                                                    std::optional<Date> dismissal);

/// The paid part of a month's salary: 1 for a whole month, never more.
[[nodiscard]] Fraction paidShare(const MonthPart& part, PartialMonth method);

/// "Salário: 3.000,00 ÷ 30 × 16 = 1.600,00".
[[nodiscard]] Reckoning partialSalary(Money salary, const MonthPart& part, PartialMonth method,
                                      std::string words = "Salário");

}  // namespace winvrx
