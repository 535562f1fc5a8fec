#include "personnel/vacation/due_vacations.h"

#include "foundation/register/employee_list.h"

#include <algorithm>

namespace winvrx {

std::vector<EmployeeDue> dueVacations(const Store& store, const CompanyCode& company,
                                      const std::vector<EmployeeLine>& employees,
                                      const FolderNames& names, Date today) {
    std::vector<EmployeeDue> found;
    for (const EmployeeLine& line : employees) {
        const auto code = line.record.employeeCode();
        const auto admission = line.record.admissionDate();
        if (!code || !admission || !mayBeDue(*admission, today)) continue;
        const EmployeeKey key{company, *code};
        if (names.contains(company.text() + leaveFileName(*code)) &&
            markedLeaves(store, key, std::nullopt).marks.inactiveSince)
            continue;
        if (const auto due = dueVacation(*admission, today, loadVacations(store, key, names)))
            found.push_back({*code, line.record.name, *due});
    }
    return found;
}

std::string dueState(const Store& store, const CompanyCode& company, Date today) {
    const auto due = dueVacations(store, company, EmployeeRegister(store, company).load(),
                                  namesIn(store), today);
    if (due.empty()) return "Nada a vencer em 60 dias";
    const auto soonest =
        std::ranges::min(due, {}, [](const EmployeeDue& one) { return one.due.lastStart; });
    return std::to_string(due.size()) + " a vencer, a partir de " + dateText(soonest.due.lastStart);
}

}  // namespace winvrx
