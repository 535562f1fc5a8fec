#pragma once

#include "foundation/files/file_system.h"
#include "foundation/register/leave_record.h"

// A single leave put into a leave file, or taken out of it, for a caller that writes more along
// with it. Every other line of the file keeps its bytes.

namespace winvrx {

/// "006 FÉRIAS" over the period.
[[nodiscard]] Leave vacationLeave(LeavePeriod period);

/// The file without the leaves of the same type and days as `out`, and with `in` before its status
/// line. Throws FileFault.
[[nodiscard]] FileSystem::NewContent replacedLeave(const Store& store, const EmployeeKey& key,
                                                   const std::optional<Leave>& out,
                                                   const std::optional<Leave>& in);

}  // namespace winvrx
