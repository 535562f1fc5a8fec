#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee.h"
#include "timecard/month/overtime_rules.h"

#include <functional>
#include <optional>
#include <vector>

namespace winvrx {

/// Told how many employees are done; false cancels.
using OvertimeProgress = std::function<bool(std::size_t done, std::size_t total)>;

/// The employees with a code whose shift passes the session's filter; none without a company.
[[nodiscard]] std::vector<Employee> listedEmployees(const Workplace& at);

/// The figures of their own that listed employees have in the month. Throws FileFault.
[[nodiscard]] std::vector<OvertimeRules> ownRulesOfList(const Workplace& at, WorkMonth month);

/// How many of the listed employees have the rules now.
struct OvertimeUpdate {
    std::size_t done = 0;
    std::size_t total = 0;

    [[nodiscard]] bool operator==(const OvertimeUpdate&) const = default;
};

/// "Atualizar p/Todos os Funcionários": gives every listed employee the month's rules as his own.
/// Asks first. Cancelled on the way, or stopped by a fault, it has updated some employees and left
/// the others as they were, and can be given again. nullopt when nothing was begun or a fault
/// stopped it.
[[nodiscard]] std::optional<OvertimeUpdate> updateOvertimeOfList(const Workplace& at,
                                                                 WorkMonth month,
                                                                 const OvertimeRules& rules,
                                                                 const OvertimeProgress& progress);

}  // namespace winvrx
