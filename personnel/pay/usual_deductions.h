#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

#include <optional>

namespace winvrx {

/// The transport voucher: 6% of the base salary without additions, at most what the tickets cost
/// (Lei 7.418/1985, art. 4º); a company may take less, and takes the limit where it does not know
/// the cost. `share` is the paid part of the month, 1 for a whole one.
[[nodiscard]] Reckoning transportVoucher(Money salary, std::optional<Money> cost,
                                         const Fraction& percent, const Fraction& share);

/// A part of the salary paid before the month ends; usual are 40%.
[[nodiscard]] Reckoning salaryAdvance(Money salary, const Fraction& percent);

/// The salary-family of a month (Lei 8.213/1991, art. 65 to 70), which is paid: a quota for each
/// child up to 14 years, or disabled of any age, of whoever's pay of the month is within the limit.
/// `share` is the part of the month that was employed, 1 for a whole one: quotas of the months of
/// admission and dismissal go by days.
[[nodiscard]] Reckoning familyQuota(const PayrollLaw& law, Money monthsPay, int children,
                                    WorkMonth competence, const Fraction& share = 1);

}  // namespace winvrx
