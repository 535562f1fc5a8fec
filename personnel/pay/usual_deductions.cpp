#include "personnel/pay/usual_deductions.h"

#include <utility>

namespace winvrx {

namespace {

Sum shareOf(Sum sum, const Fraction& share) {
    return share == Fraction(1) ? sum : std::move(sum).times(share);
}

}  // namespace

Reckoning transportVoucher(Money salary, std::optional<Money> cost, const Fraction& percent,
                           const Fraction& share) {
    if (percent == Fraction(0) || cost == Money{}) return {};
    Reckoning limit =
        shareOf(Sum(salary).percent(percent), share).rounded("Limite do vale-transporte");
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

Reckoning familyQuota(const PayrollLaw& law, Money monthsPay, int children, WorkMonth competence,
                      const Fraction& share) {
    if (children <= 0) return {};
    const SalaryFamily& rule = law.tables.salaryFamily.at(firstDay(competence));
    if (monthsPay > rule.limit)
        return {{},
                {{"Salário-família",
                  moneyText(monthsPay) + " passa do limite de " + moneyText(rule.limit)}}};
    return shareOf(Sum(rule.quota).times(children), share).rounded("Salário-família");
}

}  // namespace winvrx
