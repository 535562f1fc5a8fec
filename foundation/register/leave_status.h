#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/values/date.h"

#include <map>
#include <optional>
#include <string_view>

// Whether an employee is active stands at the end of his leave file: a line "**** " alone for an
// active one, "**** dd/mm/yyyy" for one inactive since that day. No file means active.

namespace winvrx {

/// The day that the status line names; nullopt while the employee is active. `leaveFileBytes` is
/// the whole file.
[[nodiscard]] std::optional<Date> inactiveSince(std::string_view leaveFileBytes);

/// The inactive employees of a company and since when. Throws FileFault.
[[nodiscard]] std::map<EmployeeCode, Date> inactiveEmployees(const Store& store,
                                                             const CompanyCode& company);

}  // namespace winvrx
