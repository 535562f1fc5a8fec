#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

namespace winvrx {

/// Unhealthy work: 10, 20 or 40% of the minimum wage of the month (CLT, art. 192), or of the salary
/// where the company says so.
[[nodiscard]] Reckoning unhealthyPay(const PayrollLaw& law, const Fraction& percent, Money salary,
                                     WorkMonth competence);
/// The same of a base that is known.
[[nodiscard]] Reckoning unhealthyPay(const Fraction& percent, Money base);

/// Dangerous work: 30% of the base salary (CLT, art. 193 par. 1).
[[nodiscard]] Reckoning dangerPay(Money salary);

/// Only the better of both is due (CLT, art. 193 par. 2); of two equal ones that for danger.
struct RiskPay {
    Reckoning unhealthy;
    Reckoning danger;

    [[nodiscard]] Money total() const { return unhealthy.amount + danger.amount; }
};
[[nodiscard]] RiskPay betterRiskPay(Reckoning unhealthy, Reckoning danger);

}  // namespace winvrx
