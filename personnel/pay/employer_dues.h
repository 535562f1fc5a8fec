#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

// What the employer pays on top of the wages; nothing of it is taken from the employee.

namespace winvrx {

/// 8% of the pay of the month, apprentices 2% (Lei 8.036/1990, art. 15).
enum class FgtsRate { Usual = 8, Apprentice = 2 };
[[nodiscard]] Reckoning fgts(const PayrollLaw& law, Money base, FgtsRate rate = FgtsRate::Usual,
                             std::string words = "FGTS");

/// The fine on the account at the end of a contract: 40%, by mutual fault 20% (Lei 8.036/1990, art.
/// 18).
[[nodiscard]] Reckoning fgtsFine(Money account, int percent);

/// The day by which the dues of a month are paid: the 20th of the next one.
[[nodiscard]] Date duesDay(WorkMonth competence);

/// The lines of the single monthly guide of a domestic employer (LC 150/2015, art. 34). The two
/// contributions fall on what is under the INSS ceiling, the two deposits on everything.
struct DomesticGuide {
    Reckoning employee;  ///< taken from the wage
    Reckoning employer;  ///< 8%
    Reckoning accident;  ///< 0,8%
    Reckoning fgts;      ///< 8%
    Reckoning reserve;   ///< 3,2%, in place of the fine of 40%
    Money total;
    Date due{};
};
[[nodiscard]] DomesticGuide domesticGuide(const PayrollLaw& law, Money base, WorkMonth competence);

}  // namespace winvrx
