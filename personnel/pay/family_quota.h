#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

namespace winvrx {

/// The salary-family of a month (Lei 8.213/1991, art. 65 to 70): a quota for each child up to 14
/// years, or disabled of any age, of whoever's pay of the month is within the limit. `share` is the
/// part of the month that was employed, 1 for a whole one: quotas of the months of admission and
/// dismissal go by days.
[[nodiscard]] Reckoning familyQuota(const PayrollLaw& law, Money monthsPay, int children,
                                    WorkMonth competence, const Fraction& share = 1);

}  // namespace winvrx
