#pragma once

#include "foundation/values/date.h"
#include "personnel/pay/reckoning.h"

#include <vector>

// The 13th salary (Lei 4.090/1962, Lei 4.749/1965): a twelfth of the December salary for each month
// of the year with fifteen days of service or more, half of it by 30/11, the rest by 20/12.

namespace winvrx {

/// Months of the year with fifteen days of service or more between admission and `end`, both
/// included; days of unjustified absence are no service.
[[nodiscard]] int thirteenthTwelfths(std::chrono::year year, Date admission, Date end,
                                     const std::vector<Date>& absences = {});

/// (salary + averages) ÷ 12 × twelfths.
[[nodiscard]] Reckoning thirteenthOf(Money salary, Money averages, int twelfths,
                                     std::string words = "13º salário");

/// The last day for the second instalment; where it is none for payment, it is paid before.
[[nodiscard]] Date secondInstalmentDue(std::chrono::year year);

}  // namespace winvrx
