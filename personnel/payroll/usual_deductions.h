#pragma once

#include "personnel/payroll/reckoning.h"

namespace winvrx {

/// The transport voucher: 6% of the base salary without additions, at most what the tickets cost
/// (Lei 7.418/1985, art. 4º). `share` is the paid part of the month, 1 for a whole one.
[[nodiscard]] Reckoning voucherLimit(Money salary, const Fraction& share = 1);
[[nodiscard]] Reckoning transportVoucher(Money salary, Money cost, const Fraction& share = 1);

/// A part of the salary paid before the month ends; usual are 40%.
[[nodiscard]] Reckoning salaryAdvance(Money salary, const Fraction& percent);

}  // namespace winvrx
