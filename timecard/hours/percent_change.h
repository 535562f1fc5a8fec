#pragma once

#include "foundation/desk/command.h"
#include "foundation/values/codes.h"
#include "timecard/hours/hours.h"

#include <string_view>

namespace winvrx {

/// "Duplo Clique Altera % Hora Extra!": a percentage of extra hours of one employee and month.
struct PercentChange {
    CompanyCode company;
    EmployeeCode employee;
    WorkMonth month;
    OvertimeRules shown;    ///< what held when the operator asked for the change
    HourCategory category;  ///< one that has a percentage
    std::string_view typed;
};

/// Asks, and writes the month's figures of the employee with this percentage changed. Anything but
/// a whole number from 0 to kHighestPercent is refused. True when it was recorded.
[[nodiscard]] bool changePercent(const Workplace& at, const PercentChange& change);

}  // namespace winvrx
