#include "personnel/pay/usual_deductions.h"

#include <utility>

namespace winvrx {

Reckoning voucherLimit(Money salary, const Fraction& percent, const Fraction& share) {
    Sum sum = Sum(salary).percent(percent);
    if (share != Fraction(1)) sum = std::move(sum).times(share);
    return sum.rounded("Limite do vale-transporte");
}

Reckoning transportVoucher(Money salary, std::optional<Money> cost, const Fraction& percent,
                           const Fraction& share) {
    if (percent == Fraction(0) || cost == Money{}) return {};
    Reckoning limit = voucherLimit(salary, percent, share);
    if (cost)
        return smallerOf(limit, Sum(*cost).rounded("Custo das passagens"),
                         "Vale-transporte, o menor dos dois");
    limit.memo.push_back({"O custo das passagens não é conhecido: desconta-se o limite"});
    return limit;
}

Reckoning salaryAdvance(Money salary, const Fraction& percent) {
    if (percent == Fraction(0)) return {};
    return Sum(salary).percent(percent).rounded("Adiantamento de salário");
}

}  // namespace winvrx
