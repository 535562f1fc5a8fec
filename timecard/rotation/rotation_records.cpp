#include "timecard/rotation/rotation_records.h"

#include "foundation/files/folder_names.h"
#include "foundation/files/record_names.h"
#include "timecard/month/selected_month.h"
#include "timecard/rotation/work_table.h"

#include <algorithm>

namespace winvrx {

namespace {

/// A group's table, and why it cannot be applied.
struct GroupHours {
    WorkTable table;
    std::string finding;
};

GroupHours hoursOf(const Store& store, const CompanyCode& company, const RotationGroup& group) {
    GroupHours hours{loadTable(store, company, group.shift, group.scale), {}};
    if (const auto finding = findingIn(hours.table))
        hours.finding = "O quadro de horário do " + groupName(group.number) +
                        " não pode ser aplicado. " + *finding;
    return hours;
}

RotationMonth monthOfRow(const PlanRow& row, const GroupHours& hours, WorkMonth month) {
    RotationMonth result{.days = {},
                         .weekday = timesOn(hours.table, std::chrono::Monday),
                         .saturday = timesOn(hours.table, std::chrono::Saturday),
                         .finding = hours.finding};
    for (int day = 0; day < daysIn(month); ++day) {
        const bool off = row.days[static_cast<std::size_t>(day)].turn == Turn::Off;
        const auto weekday = weekdayOf(plusDays(firstDay(month), day));
        result.days.push_back(off ? std::nullopt : std::optional(timesOn(hours.table, weekday)));
    }
    return result;
}

}  // namespace

RotationMonths monthsOf(const Store& store, const CompanyCode& company, WorkMonth month,
                        const std::vector<RotationGroup>& groups) {
    RotationMonths months;
    std::map<std::pair<Shift, Scale>, GroupHours> read;
    for (const RotationGroup& group : groups) {
        const std::pair key{group.shift, group.scale};
        if (!read.contains(key)) read.emplace(key, hoursOf(store, company, group));
        for (const PlanRow& row : planOf(group, month).rows)
            months.emplace(row.employee, monthOfRow(row, read.at(key), month));
    }
    return months;
}

bool RotationRecords::isMember(const EmployeeKey& key) const {
    WorkMonth from = monthOf(clock_.today());
    if (const auto selected = loadSelectedMonth(store_)) from = std::min(from, selected->month);
    const FolderNames names = namesIn(store_);
    const auto groupNames = beginningWith(names, key.company.text() + std::string(kGroupStem));
    return std::ranges::any_of(groupNames, [&](const std::string& name) {
        const auto month = monthOfGroupFile(name, key.company);
        if (!month || *month < from) return false;
        const auto groups = groupsIn(groupFile(store_, key.company, *month).load());
        return std::ranges::any_of(groups,
                                   [&](const auto& group) { return group.contains(key.employee); });
    });
}

RotationMonths RotationRecords::monthsOf(const CompanyCode& company, WorkMonth month) const {
    return winvrx::monthsOf(store_, company, month,
                            groupsIn(groupFile(store_, company, month).load()));
}

void RotationRecords::removeMember(const EmployeeKey& key) const {
    const FolderNames names = namesIn(store_);
    std::vector<FileSystem::NewContent> batch;
    for (const std::string& name :
         beginningWith(names, key.company.text() + std::string(kGroupStem))) {
        const auto month = monthOfGroupFile(name, key.company);
        if (!month) continue;
        const auto file = groupFile(store_, key.company, *month);
        GroupLines lines = file.load();
        bool found = false;
        for (GroupLine& line : lines) {
            auto group = groupOf(line.record);
            if (!group || !group->contains(key.employee)) continue;
            group->remove(key.employee);
            line = lineOf(recordOf(*group), line.bytes);
            found = true;
        }
        if (found) batch.push_back(file.contentOf(lines));
    }
    if (!batch.empty()) store_.files.replaceAll(batch);
}

}  // namespace winvrx
