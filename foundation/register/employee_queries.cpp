#include "foundation/register/employee_queries.h"

#include "foundation/files/payroll_file.h"
#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"

#include <algorithm>

namespace winvrx {

bool RecordedAnswers::hasClosedMonth(const EmployeeKey& key) const {
    const auto names = store_.files.names(store_.folder.path());
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return isPayrollOfEmployee(name, key); });
}

bool RecordedAnswers::isClosed(const EmployeeKey& key, WorkMonth month) const {
    return store_.files.exists(store_.folder.file(payrollFileName(key, month)));
}

std::set<EmployeeCode> RecordedAnswers::closedIn(const CompanyCode& company, WorkMonth month,
                                                 const FolderNames& names) const {
    std::set<EmployeeCode> closed;
    for (const std::string& name : beginningWith(names, company.text())) {
        if (!isPayrollFile(name)) continue;
        const auto code =
            EmployeeCode::parse(name.substr(kPayrollEmployeeStart - 1, EmployeeCode::kDigits));
        if (code && name == payrollFileName({company, *code}, month)) closed.insert(*code);
    }
    return closed;
}

EmployeeList::Marks monthMarks(const Store& store, const CompanyCode& company, WorkMonth month,
                               const FolderNames& names, const PayrollLock& payroll) {
    auto marks = EmployeeList::leaveMarks(store, company, names, month);
    for (const EmployeeCode& code : payroll.closedIn(company, month, names))
        marks[code].closed = true;
    return marks;
}

}  // namespace winvrx
