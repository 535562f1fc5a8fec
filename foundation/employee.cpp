#include "foundation/employee.h"

namespace winvrx {

std::string encode(const Employee& employee, std::string existing) {
    const bool isNew = existing.empty();
    const Employee before = isNew ? Employee() : decodeEmployee(existing);
    RecordLine line(std::move(existing), isNew ? kEmployeeWidth : 0);
    for (const EmployeeField& field : kEmployeeFields)
        if (employee.*field.member != before.*field.member)
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
