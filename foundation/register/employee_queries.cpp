#include "foundation/register/employee_queries.h"

#include "foundation/files/payroll_file.h"
#include "foundation/files/record_file.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kGroupStem = "GRUPO-";

}  // namespace

bool RecordedAnswers::isMember(const EmployeeKey& key) const {
    const std::string beginning = key.company.text() + std::string(kGroupStem);
    for (const std::string& name : store_.files.names(store_.folder.path())) {
        if (!name.starts_with(beginning)) continue;
        const auto lines =
            splitLines(store_.files.read(store_.folder.file(name)).value_or(std::string()));
        if (std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
                return line.starts_with(key.employee.text());
            }))
            return true;
    }
    return false;
}

bool RecordedAnswers::hasClosedMonth(const EmployeeKey& key) const {
    const auto names = store_.files.names(store_.folder.path());
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return isPayrollOfEmployee(name, key); });
}

bool RecordedAnswers::isClosed(const EmployeeKey& key, WorkMonth month) const {
    return store_.files.exists(store_.folder.file(payrollFileName(key, month)));
}

EmployeeLeaves RecordedAnswers::leavesOf(const EmployeeKey& key) const {
    return loadLeaves(store_, key);
}

}  // namespace winvrx
