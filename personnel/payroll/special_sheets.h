#pragma once

#include "personnel/payroll/pay_sheet_case.h"

#include <functional>
#include <map>
#include <string>

// The events of a vacation and of the 13th salary on the sheet of a month.

namespace winvrx {

using Reckonings = std::map<std::string, Reckoning, std::less<>>;

/// 011 to 016; of days sold and days past the limit of the concession 034 to 036.
[[nodiscard]] Reckonings vacationEarnings(const PayrollLaw& law, const MonthPayCase& month,
                                          const VacationSheet& vacation);
/// 093 and 094 on what the earnings came to.
[[nodiscard]] Reckonings vacationDeductions(const PayrollLaw& law, const MonthPayCase& month,
                                            const VacationSheet& vacation, Money taxable);

/// Of the first instalment 018, 019, 021 and 033, of the second 017, 020 and 022. Pay for danger
/// has no event of its own in the second: it is in 017.
[[nodiscard]] Reckonings thirteenthEarnings(const PayrollLaw& law, const MonthPayCase& month,
                                            const ThirteenthSheet& year);
/// 095, 096 and 032 of the second instalment.
[[nodiscard]] Reckonings thirteenthDeductions(const PayrollLaw& law, const MonthPayCase& month,
                                              const ThirteenthSheet& year, Money total);

}  // namespace winvrx
