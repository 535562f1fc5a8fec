#pragma once

#include "foundation/desk/finding.h"
#include "foundation/register/employee_register.h"

#include <string>
#include <vector>

// What the register asks of an employee's data before it records them. `before` is the record as it
// was, an empty one for a new employee: dates that nobody touched are not judged, so that old
// records stay editable.

namespace winvrx {

/// What is refused, the admission date that cannot be read and empty required fields aside.
[[nodiscard]] Findings<Employee> wrongIn(const Employee& typed, const Employee& before, Date today);

/// What is doubtful: check digits, an age of under fourteen at admission or of over a hundred
/// today, a CPF that another employee of the list has.
[[nodiscard]] Findings<Employee> doubtsAbout(const Employee& typed, const Employee& before,
                                             const std::vector<EmployeeLine>& list, Date today);

/// "Código: 012 já pertence a outro funcionário."
[[nodiscard]] Finding<Employee> takenCode(const Employee& typed);

/// "Admissão: 31/02/2024 não existe."
[[nodiscard]] Finding<Employee> noSuchDate(const Employee& typed, std::string Employee::*date);

}  // namespace winvrx
