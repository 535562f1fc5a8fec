#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

#include <chrono>
#include <initializer_list>

// What hours are worth. The value of an hour is never rounded by itself, unless the company says
// so; a line is rounded once, at its total.

namespace winvrx {

/// The pay of a month that an hour is a part of, and of how many hours the month is: 44 a week
/// give 220, 40 give 200 (Súmula 431 of the TST).
struct HourBase {
    Money pay;
    Fraction divisor;  ///< above zero
};

/// In cents and parts of a cent.
[[nodiscard]] Fraction hourValue(const PayrollLaw& law, const HourBase& base);

/// Clock hours as hours of night work: of 52 minutes 30 seconds each (CLT, art. 73 par. 1), or as
/// they are where work is rural or the company does not reduce them.
[[nodiscard]] Fraction nightHours(const PayrollLaw& law, std::chrono::seconds clock);

/// Hours with `percent` added to each (CF, art. 7º, XVI; Súmula 264).
[[nodiscard]] Reckoning overtimePay(const PayrollLaw& law, const HourBase& base, int percent,
                                    std::chrono::seconds worked, std::string words);

/// What night work adds: 20% (CLT, art. 73), rural 25% (Lei 5.889/1973, art. 7º), on the hours
/// that `nightHours` gives.
[[nodiscard]] Reckoning nightPremium(const PayrollLaw& law, const HourBase& base,
                                     std::chrono::seconds clock);

/// Overtime at night: both additions one upon the other, on the hours of night work.
[[nodiscard]] Reckoning nightOvertimePay(const PayrollLaw& law, const HourBase& base, int percent,
                                         std::chrono::seconds clock, std::string words);

/// Time that was due and not worked.
[[nodiscard]] Reckoning timeLost(const PayrollLaw& law, const HourBase& base,
                                 std::chrono::seconds time);

/// What the rest days get of the variable pay of the month (Lei 605/1949, art. 7º; Súmula 172).
/// Nothing in a month without business days.
[[nodiscard]] Reckoning restReflex(std::initializer_list<Money> variablePay, int businessDays,
                                   int restDays);

/// The average of `hours` overtime over `months`, at today's value (Súmula 347): what it adds to a
/// 13th salary or a vacation. Requires months > 0.
[[nodiscard]] Reckoning overtimeAverage(const PayrollLaw& law, const HourBase& base, int percent,
                                        std::chrono::seconds hours, int months);

}  // namespace winvrx
