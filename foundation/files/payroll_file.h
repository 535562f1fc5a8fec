#pragma once

#include "foundation/values/codes.h"
#include "foundation/values/date.h"

#include <cstddef>
#include <string>
#include <string_view>

// The payroll of an employee and month: "01fp0000103-2024.bdx" is company code, "fp", the employee
// code with five digits, the month. Its presence closes the month for the employee.

namespace winvrx {

/// Where the three digits of the employee code stand in the name, counted from 1.
inline constexpr std::size_t kPayrollEmployeeStart = 7;

[[nodiscard]] std::string payrollFileName(const EmployeeKey& key, WorkMonth month);

/// Whether the name is that of a payroll, of any company, employee and month.
[[nodiscard]] bool isPayrollFile(std::string_view name);

}  // namespace winvrx
