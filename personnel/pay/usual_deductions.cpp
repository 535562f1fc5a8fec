#include "personnel/pay/usual_deductions.h"

#include <utility>

namespace winvrx {

Reckoning voucherLimit(Money salary, const Fraction& percent, const Fraction& share) {
    Sum sum = Sum(salary).percent(percent);
    if (share != Fraction(1)) sum = std::move(sum).times(share);
    return sum.rounded("Limite do vale-transporte");
}

Reckoning transportVoucher(Money salary, Money cost, const Fraction& percent,
                           const Fraction& share) {
    if (cost.cents == 0) return {};
    return smallerOf(voucherLimit(salary, percent, share), Sum(cost).rounded("Custo das passagens"),
                     "Vale-transporte, o menor dos dois");
}

Reckoning salaryAdvance(Money salary, const Fraction& percent) {
    if (percent == Fraction(0)) return {};
    return Sum(salary).percent(percent).rounded("Adiantamento de salário");
}

}  // namespace winvrx
