#include "timecard/rotation/month_groups.h"

#include "foundation/files/record_names.h"
#include "foundation/values/faults.h"

#include <algorithm>
#include <iterator>

namespace winvrx {

void MonthGroups::read(const Store& store, const FolderNames& names) {
    lines_ = file(store).load();
    before_ = groupsOf(store, company_.value(), month_ - kOneMonth);
    continuableFrom_.reset();
    if (lines_.empty())
        for (const WorkMonth month : monthsWithGroups(names, *company_))
            if (month < month_)
                continuableFrom_ = std::max(continuableFrom_.value_or(month), month);
    notes_.clear();
    groups_.clear();
    for (const RotationGroup& group : groupsIn(lines_))
        groups_.push_back(withoutStrays(group, notes_));
    std::ranges::sort(groups_, {}, &RotationGroup::number);
    if (const std::size_t unread = lines_.size() - groups_.size(); unread > 0)
        notes_.push_back(std::to_string(unread) +
                         " linha(s) do arquivo de grupos não foram entendidas e ficam como estão.");
}

const RotationGroup* MonthGroups::find(int number) const {
    const auto group = std::ranges::find(groups_, number, &RotationGroup::number);
    return group == groups_.end() ? nullptr : &*group;
}

std::optional<RotationGroup> MonthGroups::recorded(int number) const {
    const GroupLine* line = findLine(lines_, number);
    return line ? groupOf(line->record) : std::nullopt;
}

std::string MonthGroups::strayReason(const EmployeeCode& code, const RotationGroup& group) const {
    const auto person = people_.find(code);
    if (person == people_.end()) return "não está no cadastro com escala de revezamento";
    const Employee& employee = person->second.employee;
    if (employee.status == kDeletedStatus) return "está excluído";
    const auto end = person->second.leaves.contractEnd();
    if (end && *end < firstDay(month_)) return "está inativo";
    if (employee.shiftOr() != group.shift) return "está em outro turno";
    if (employee.scaleOr() != group.scale) return "está em outra escala";
    return {};
}

RotationGroup MonthGroups::withoutStrays(RotationGroup group,
                                         std::vector<std::string>& notes) const {
    for (const EmployeeCode& code : group.members()) {
        const std::string reason = strayReason(code, group);
        if (reason.empty()) continue;
        notes.push_back(groupName(group.number) + ": " + nameOf(names(), code) + " " + reason +
                        " e não fica no grupo.");
        group.remove(code);
    }
    return group;
}

MemberNames MonthGroups::names() const {
    MemberNames names;
    for (const auto& [code, person] : people_)
        names.emplace(code, person.employee.code + " " + person.employee.name);
    return names;
}

Absence MonthGroups::absence() const {
    return [this](const EmployeeCode& code, Date date) {
        const auto person = people_.find(code);
        return person != people_.end() &&
               person->second.leaves.standingOn(date) != Standing::Employed;
    };
}

GroupLines MonthGroups::linesAsRead(const Store& store,
                                    const std::vector<RotationGroup>& groups) const {
    GroupLines now = file(store).load();
    for (const RotationGroup& group : groups) {
        const GroupLine* line = findLine(now, group.number);
        const GroupLine* read = findLine(lines_, group.number);
        if ((line == nullptr) != (read == nullptr) || (line && !(*line == *read)))
            throw changedElsewhere("rotation groups", "O grupo foi alterado");
    }
    return now;
}

void MonthGroups::continueFrom(const Store& store, WorkMonth earlier) {
    if (!file(store).load().empty())
        throw changedElsewhere("rotation groups", "Já há grupos no mês");
    std::vector<std::string> left;
    GroupLines lines;
    for (RotationGroup group : groupsOf(store, company_.value(), earlier)) {
        group = continued(withoutStrays(std::move(group), left), month_);
        if (!group.members().empty()) lines.push_back(lineOf(recordOf(group)));
    }
    if (!lines.empty()) store.files.replaceAll({file(store).contentOf(lines)});
    read(store, namesIn(store));
    std::ranges::move(left, std::back_inserter(notes_));
}

}  // namespace winvrx
