#include "foundation/files/record_names.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/faults.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using fuzz::require;

namespace {

void checkLine(const EmployeeLine& line) {
    require(line.bytes.empty() || encode(line.record, line.bytes) == line.bytes,
            "an unchanged employee keeps its bytes");
    if (const auto code = line.key()) fuzz::requireInside(*code);
    try {
        require(decode<Employee>(encode(line.record)) == line.record, "an employee comes back");
    } catch (const TextFault&) {
        // A control character in the file cannot be typed into a new line.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    const auto file = fuzz::kFolder.companyFile(fuzz::kCompany, kEmployeeListStem);
    files.content[file] = fuzz::textOf(data, size);
    const auto before = splitLines(files.content[file]);
    EmployeeRegister employees({files, fuzz::kFolder}, fuzz::kCompany);
    const auto lines = employees.load();
    for (const EmployeeLine& line : lines)
        checkLine(line);
    employees.save(lines, {*parseDate("15/03/2024"), *parseTime("10:20")});
    require(splitLines(files.content[file]) == before, "every line is kept");
    const auto copy = fuzz::kFolder.file("bk-0115-03-2024-10-00.bkp");
    require(files.content[copy] == fuzz::textOf(data, size), "the hourly copy is the list before");
    return 0;
}
