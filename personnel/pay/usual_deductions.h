#pragma once

#include "personnel/pay/reckoning.h"

#include <optional>

namespace winvrx {

/// The transport voucher: 6% of the base salary without additions, at most what the tickets cost
/// (Lei 7.418/1985, art. 4º); a company may take less, and takes the limit where
/// it does not know the cost. `share` is the paid part of the month, 1 for
/// a whole one.
inline constexpr int kVoucherPercent = 6;
[[nodiscard]] Reckoning voucherLimit(Money salary, const Fraction& percent, const Fraction& share);
[[nodiscard]] Reckoning transportVoucher(Money salary, std::optional<Money> cost,
                                         const Fraction& percent, const Fraction& share);

/// A part of the salary paid before the month ends; usual are 40%.
[[nodiscard]] Reckoning salaryAdvance(Money salary, const Fraction& percent);

}  // namespace winvrx
