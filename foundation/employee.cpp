#include "foundation/employee.h"

namespace winvrx {

std::string encode(const Employee& employee, std::string existing) {
    RecordLine line(std::move(existing), kEmployeeWidth);
    for (const EmployeeField& field : kEmployeeFields)
        line.put(field.column, employee.*field.member);
    return line.bytes();
}

Employee decodeEmployee(std::string_view lineBytes) {
    Employee employee;
    for (const EmployeeField& field : kEmployeeFields)
        employee.*field.member = fieldOf(lineBytes, field.column);
    return employee;
}

}  // namespace winvrx
