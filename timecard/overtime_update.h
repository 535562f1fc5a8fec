#pragma once

#include "foundation/command.h"
#include "foundation/employee.h"
#include "timecard/overtime_rules.h"

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

/// "Atualizar p/Todos os Funcionários": gives every listed employee the month's rules as his own,
/// in one batch: all of them or, refused or cancelled, none. Asks first. nullopt when nothing was
/// written, else how many employees have them now.
[[nodiscard]] std::optional<std::size_t> updateOvertimeOfList(const Workplace& at, WorkMonth month,
                                                              const OvertimeRules& rules,
                                                              const OvertimeProgress& progress);

}  // namespace winvrx
