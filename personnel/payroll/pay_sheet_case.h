#pragma once

#include "personnel/pay/month_pay.h"

#include <optional>

// What the payroll of an employee and month is computed from.

namespace winvrx {

enum class Instalment { First, Second };

struct ThirteenthSheet {
    Instalment instalment = Instalment::First;
    int twelfths = 12;
    std::optional<int> twelfthsSoFar = {};
    Reckoning averages = {};  ///< of overtime and other variable pay
    Money firstPaid = {};     ///< of the second: what the first paid out
    Date paid{};
};

struct VacationSheet {
    Date start{};
    int days = 30;            ///< taken
    int soldDays = 0;         ///< turned into pay
    int doubledDays = 0;      ///< of those taken, past the limit of the concession
    Reckoning averages = {};  ///< of the acquisition period
    Date paid{};
    Money monthsIncome = {};  ///< where the reduction of the IRRF takes it in
};

struct PaySheetCase {
    MonthPayCase month;
    bool hasMonth = true;  ///< whether the lines of the month itself stand on the sheet
    std::optional<VacationSheet> vacation = {};
    std::optional<ThirteenthSheet> thirteenth = {};
};

}  // namespace winvrx
