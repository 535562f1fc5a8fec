#include "personnel/vacation/due_vacations.h"

#include "foundation/files/record_names.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

/// Whatever is recorded: who is not among these needs no look at his vacations.
bool mayBeDue(Date admission, const LeaveCalendar& leaves, Date today) {
    return dueVacation({admission}, today, {}) ||
           dueVacation(acquisitionCount(admission, leaves, {}), today, {});
}

/// Of a company's file, behind its code.
bool isReadHere(std::string_view name) {
    return std::ranges::any_of(
        std::array{kEmployeeListStem, kLeaveStem, kVacationStem},
        [stem = name.substr(2)](std::string_view one) { return stem.starts_with(one); });
}

std::string textOf(const std::vector<EmployeeDue>& due) {
    if (due.empty()) return "Nada a vencer em 60 dias";
    const auto soonest =
        std::ranges::min(due, {}, [](const EmployeeDue& one) { return one.due.lastStart; });
    const std::string first = dateText(soonest.due.lastStart);
    if (due.size() == 1) return "1 vence em " + first;
    return std::to_string(due.size()) + " vencem, a 1ª em " + first;
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

const std::string& DueState::text(const Store& store, const CompanyCode& company, Date today) {
    Seen now{store.folder.path(), company.text(), today};
    FolderNames names;
    for (const ListedFile& file : store.files.list(now.folder)) {
        names.insert(file.name);
        if (file.name.starts_with(now.company) && isReadHere(file.name)) now.files.push_back(file);
    }
    std::ranges::sort(now.files, {}, &ListedFile::name);
    if (now != seen_) {
        const auto employees = EmployeeRegister(store, company).load();
        text_ = textOf(dueVacations(store, company, employees, names, today));
        seen_ = std::move(now);
    }
    return text_;
}

}  // namespace winvrx
