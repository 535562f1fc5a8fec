#include "personnel/pay/risk_pay.h"

namespace winvrx {

namespace {

constexpr int kDangerPercent = 30;

}  // namespace

Reckoning unhealthyPay(const PayrollLaw& law, const Fraction& percent, Money salary,
                       WorkMonth competence) {
    if (law.settings.unhealthyBase == UnhealthyBase::Salary) return unhealthyPay(percent, salary);
    return unhealthyPay(percent, law.tables.minimumWage.at(firstDay(competence)).amount);
}

Reckoning unhealthyPay(const Fraction& percent, Money base) {
    return Sum(base).percent(percent).rounded("Insalubridade");
}

Reckoning dangerPay(Money salary) {
    return Sum(salary).percent(kDangerPercent).rounded("Periculosidade");
}

RiskPay betterRiskPay(Reckoning unhealthy, Reckoning danger) {
    const bool isDanger = danger.amount >= unhealthy.amount;
    if (unhealthy.amount.cents > 0 && danger.amount.cents > 0)
        (isDanger ? danger : unhealthy)
            .memo.push_back({"Não se acumulam insalubridade e periculosidade: vale a maior"});
    return isDanger ? RiskPay{{}, std::move(danger)} : RiskPay{std::move(unhealthy), {}};
}

}  // namespace winvrx
