#include "personnel/pay/family_quota.h"

namespace winvrx {

Reckoning familyQuota(const PayrollLaw& law, Money monthsPay, int children, WorkMonth competence,
                      const Fraction& share) {
    if (children <= 0) return {};
    const SalaryFamily& rule = law.tables.salaryFamily.at(firstDay(competence));
    if (monthsPay > rule.limit)
        return {{},
                {{"Salário-família",
                  moneyText(monthsPay) + " passa do limite de " + moneyText(rule.limit)}}};
    Sum sum = Sum(rule.quota).times(children);
    if (share != Fraction(1)) sum = std::move(sum).times(share);
    return sum.rounded("Salário-família");
}

}  // namespace winvrx
