#include "foundation/files/record_names.h"
#include "foundation/register/employee_register.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using fuzz::require;

namespace {

void checkLine(const EmployeeLine& line) {
    require(line.bytes.empty() || encode(line.record, line.bytes) == line.bytes,
            "an unchanged employee keeps its bytes");
    if (const auto code = line.key()) fuzz::requireInside(*code);
    fuzz::requireBack(line.record, decode<Employee>, "an employee comes back");
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file(fuzz::kFolder.companyFile(fuzz::kCompany, kEmployeeListStem), bytes);
    EmployeeRegister employees(file.store, fuzz::kCompany);
    const auto lines = employees.load();
    for (const EmployeeLine& line : lines)
        checkLine(line);
    employees.save(lines, {*parseDate("15/03/2024"), *parseTime("10:20")});
    require(file.lines() == file.before, "every line is kept");
    const auto copy = fuzz::kFolder.file("bk-0115-03-2024-10-00.bkp");
    require(file.files.content[copy] == bytes, "the hourly copy is the list before");
}
