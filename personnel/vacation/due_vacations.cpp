#include "personnel/vacation/due_vacations.h"

#include <algorithm>

namespace winvrx {

namespace {

/// Whatever is recorded: who is not among these needs no look at his vacations.
bool mayBeDue(Date admission, const LeaveCalendar& leaves, Date today) {
    return dueVacation({admission}, today, {}) ||
           dueVacation(acquisitionCount(admission, leaves, {}), today, {});
}

}  // namespace

std::vector<EmployeeDue> dueVacations(const Store& store, const CompanyCode& company,
                                      const std::vector<EmployeeLine>& employees,
                                      const FolderNames& names, Date today) {
    std::vector<EmployeeDue> found;
    for (const EmployeeLine& line : employees) {
        const auto code = line.record.employeeCode();
        const auto admission = line.record.admissionDate();
        if (!code || !admission) continue;
        const EmployeeKey key{company, *code};
        LeaveCalendar leaves;
        if (names.contains(company.text() + leaveFileName(*code)))
            leaves = loadLeaveCalendar(store, key, admission);
        if (leaves.inactiveSince() || !mayBeDue(*admission, leaves, today)) continue;
        const VacationLines lines = loadVacations(store, key, names);
        if (const auto due = dueVacation(acquisitionCount(*admission, leaves, lines), today, lines))
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
