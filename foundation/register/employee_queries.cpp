#include "foundation/register/employee_queries.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kGroupStem = "GRUPO-";
constexpr int kPayrollDigits = 5;

}  // namespace

bool RecordedLocks::isMember(const CompanyCode& company, const EmployeeCode& employee) const {
    const std::string beginning = company.text() + std::string(kGroupStem);
    for (const std::string& name : files_.names(folder_.path())) {
        if (!name.starts_with(beginning)) continue;
        const auto lines = splitLines(files_.read(folder_.file(name)).value_or(std::string()));
        if (std::any_of(lines.begin(), lines.end(),
                        [&](const std::string& line) { return line.starts_with(employee.text()); }))
            return true;
    }
    return false;
}

bool RecordedLocks::hasClosedMonth(const CompanyCode& company, const EmployeeCode& employee) const {
    const auto names = files_.names(folder_.path());
    return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
        return isPayrollOfEmployee(name, company, employee);
    });
}

bool RecordedLocks::isClosed(const CompanyCode& company, const EmployeeCode& employee,
                             WorkMonth month) const {
    const std::string name = std::string(kPayrollStem) + padded(employee.number(), kPayrollDigits) +
                             monthKey(month) + ".bdx";
    return files_.exists(folder_.companyFile(company, name));
}

}  // namespace winvrx
