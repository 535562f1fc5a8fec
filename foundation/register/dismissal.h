#pragma once

#include "foundation/register/employee.h"
#include "foundation/values/clock.h"

#include <optional>
#include <string>
#include <string_view>

// The end of a contract stands in two files: as the date of dismissal in the register, and as the
// date of the inactivation in the leave file, which is the one that decides.

namespace winvrx {

/// "inativo desde 10/02/2024", "ativo".
[[nodiscard]] std::string statusText(std::optional<Date> inactiveSince);

/// What register and leave file say differently, in one sentence; empty when they agree.
[[nodiscard]] std::string dismissalContradiction(const Employee& employee,
                                                 std::optional<Date> inactiveSince);

/// Rewrites an employee's leave file. Where that changes since when he is inactive, his date of
/// dismissal in the register follows, both or none: the register is written first and taken back
/// when the leave file cannot be written. Cut short in between, the two contradict each other and
/// the command given again ends right. Who calls holds the folder. Throws FileFault, and Fault when
/// the register has no such employee.
void saveLeaveFile(const Store& store, const EmployeeKey& key, std::string_view leaveFileBytes,
                   Clock::Moment now);

}  // namespace winvrx
