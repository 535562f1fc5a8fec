#pragma once

#include "foundation/files/record_file.h"
#include "foundation/register/employee.h"

#include <vector>

namespace winvrx::testing {

/// What matters of an employee to the rules.
struct EmployeeTerms {
    std::string shift = "Unico";
    std::string scale = "Normal";
    std::string admission = "12/03/2024";
};

/// An employee who can be recorded: `employee("001", "ANA", {.shift = "Dois"})`.
inline Employee employee(std::string code, std::string name, const EmployeeTerms& terms = {}) {
    Employee made;
    made.code = std::move(code);
    made.name = std::move(name);
    made.shift = terms.shift;
    made.scale = terms.scale;
    made.admission = terms.admission;
    return made;
}

/// The bytes of a company's list, `01CartaPonto`.
inline std::string employeeList(const std::vector<Employee>& employees) {
    std::vector<std::string> lines;
    for (const Employee& one : employees)
        lines.push_back(encode(one));
    return joinedLines(lines);
}

}  // namespace winvrx::testing
