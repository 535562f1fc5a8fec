#include "foundation/employee.h"

namespace winvrx {

std::string encode(const Employee& employee, std::string existing) {
    const bool isNew = existing.empty();
    const Employee before = isNew ? Employee() : decodeEmployee(existing);
    RecordLine line(std::move(existing), isNew ? kEmployeeWidth : 0);
    putFields(kEmployeeFields, employee, before, line);
    return line.bytes();
}

Employee decodeEmployee(std::string_view lineBytes) {
    return decodeFields<Employee>(kEmployeeFields, lineBytes);
}

}  // namespace winvrx
