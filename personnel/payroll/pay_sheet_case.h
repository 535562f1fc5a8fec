#pragma once

#include "personnel/pay/month_pay.h"
#include "personnel/vacation/vacation_pay.h"

#include <optional>

// What the payroll of an employee and month is computed from.

namespace winvrx {

enum class Instalment { First, Second };

struct ThirteenthSheet {
    Instalment instalment = Instalment::First;
    int twelfths = 12;
    std::optional<int> twelfthsSoFar = {};
    Money averages = {};
    Money firstPaid = {};  ///< of the second: what the first paid out
    Date paid{};
    Memo averagesMemo = {};
};

struct VacationSheet {
    VacationCase pay;  ///< salary and additions apart: `pay.salary` is the base salary
    Date start{};
    Memo averagesMemo = {};
};

struct PaySheetCase {
    MonthPayCase month;
    bool hasMonth = true;  ///< whether the lines of the month itself stand on the sheet
    std::optional<VacationSheet> vacation = {};
    std::optional<ThirteenthSheet> thirteenth = {};
};

}  // namespace winvrx
