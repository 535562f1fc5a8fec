#pragma once

#include "foundation/values/codes.h"
#include "foundation/values/date.h"

#include <cstddef>
#include <string>
#include <string_view>

// The payrolls of an employee and month, a file each: "01fp0000103-2024.bdx" is company code, "fp",
// the employee code with five digits, the month. The presence of that file closes the month for the
// employee. A vacation, "01fv…", and the instalments of a 13th salary, "01fa…" and "01fi…", are
// paid while a month is under way and close nothing.

namespace winvrx {

/// What an employee is paid in a month.
enum class PayrollRun { Month, ThirteenthFirst, ThirteenthSecond, Vacation };

/// Where the three digits of the employee code stand in the name, counted from 1.
inline constexpr std::size_t kPayrollEmployeeStart = 7;

[[nodiscard]] std::string payrollFileName(const EmployeeKey& key, WorkMonth month,
                                          PayrollRun run = PayrollRun::Month);

/// Whether the name is that of a month's payroll, of any company, employee and month.
[[nodiscard]] bool isPayrollFile(std::string_view name);
/// The same of any run.
[[nodiscard]] bool isFileOfAnyRun(std::string_view name);

}  // namespace winvrx
