#pragma once

#include "foundation/desk/command.h"
#include "timecard/month/overtime_rules.h"

#include <functional>
#include <optional>
#include <vector>

namespace winvrx {

/// Told how many employees are done; false cancels.
using OvertimeProgress = std::function<bool(std::size_t done, std::size_t total)>;

/// The percentages of their own that listed employees have in the month, of those whose month is
/// not closed. Throws FileFault.
[[nodiscard]] std::vector<OvertimePercents> ownPercentsOfList(const Workplace& at, WorkMonth month);

/// How many of the listed employees have the percentages now, of those whose month is not closed.
struct OvertimeUpdate {
    std::size_t done = 0;
    std::size_t total = 0;
    std::size_t closed = 0;  ///< employees whose payroll is generated: left as they were

    [[nodiscard]] bool operator==(const OvertimeUpdate&) const = default;
};

/// "Atualizar p/Todos os Funcionários": gives every listed employee the month's percentages as his
/// own; the other rules are the month's for everyone. Asks first, and names those who are left as
/// they are because their payroll of the month is generated. Cancelled on the way, or stopped by a
/// fault, it has updated some employees and left the others as they were, and can be given again.
/// nullopt when nothing was begun or a fault stopped it.
[[nodiscard]] std::optional<OvertimeUpdate> updateOvertimeOfList(const Workplace& at,
                                                                 WorkMonth month,
                                                                 const OvertimePercents& percents,
                                                                 const OvertimeProgress& progress);

}  // namespace winvrx
