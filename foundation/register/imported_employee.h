#pragma once

#include "foundation/register/employee_register.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

// What a row of a spreadsheet means: spreadsheets drop leading zeros, shorten dates and name shifts
// in words.

namespace winvrx {

/// The text of a cell in the form that the record holds: "7" as code becomes "007", "1/3/2024" a
/// full date, "Noite" the code of its shift. What is not understood comes back as it is.
[[nodiscard]] std::string recordText(std::string Employee::*field, std::string_view cell);

/// Fills what a row may leave out: the lowest code that neither a line nor a file bears, commercial
/// hours, the normal scale.
void completeImported(Employee& employee, const std::vector<EmployeeLine>& list,
                      std::set<EmployeeCode> codesOfFiles);

/// Why the employee cannot be appended to the list; empty when he can.
[[nodiscard]] std::string importProblem(const Employee& employee,
                                        const std::vector<EmployeeLine>& list, Date today);

/// What is worth a look although the employee can be appended.
[[nodiscard]] std::string importNotice(const Employee& employee);

}  // namespace winvrx
