#include "timecard/rotation/rotation_records.h"

#include "foundation/files/folder_names.h"
#include "foundation/files/record_names.h"
#include "timecard/month/selected_month.h"
#include "timecard/rotation/work_table.h"

#include <algorithm>

namespace winvrx {

namespace {

RotationMonth monthOfRow(const PlanRow& row, const RotationGroup& group, const WorkTable& table,
                         WorkMonth month) {
    RotationMonth result{.days = {},
                         .weekday = timesOn(table, std::chrono::Monday),
                         .saturday = timesOn(table, std::chrono::Saturday)};
    for (const Date date : datesOf(month)) {
        const bool off = row.on(date).turn == Turn::Off;
        result.days.push_back(off ? std::nullopt : std::optional(timesOn(table, weekdayOf(date))));
    }
    if (const auto finding = findingIn(table))
        result.finding = "O quadro de horário do " + groupName(group.number) +
                         " não pode ser aplicado. " + *finding;
    return result;
}

}  // namespace

RotationMonths monthsOf(const Store& store, const CompanyCode& company, WorkMonth month,
                        const std::vector<RotationGroup>& groups) {
    RotationMonths months;
    std::map<std::pair<Shift, Scale>, WorkTable> tables;
    for (const RotationGroup& group : groups) {
        const std::pair key{group.shift, group.scale};
        if (!tables.contains(key))
            tables.emplace(key, loadTable(store, company, group.shift, group.scale));
        for (const PlanRow& row : planOf(group, month).rows)
            months.emplace(row.employee, monthOfRow(row, group, tables.at(key), month));
    }
    return months;
}

bool RotationRecords::isMember(const EmployeeKey& key) const {
    WorkMonth from = monthOf(clock_.today());
    if (const auto selected = loadSelectedMonth(store_)) from = std::min(from, selected->month);
    for (const WorkMonth month : monthsWithGroups(namesIn(store_), key.company))
        if (month >= from)
            for (const RotationGroup& group : groupsOf(store_, key.company, month))
                if (group.contains(key.employee)) return true;
    return false;
}

RotationMonths RotationRecords::monthsOf(const CompanyCode& company, WorkMonth month) const {
    return winvrx::monthsOf(store_, company, month, groupsOf(store_, company, month));
}

void RotationRecords::removeMember(const EmployeeKey& key) const {
    std::vector<FileSystem::NewContent> batch;
    for (const WorkMonth month : monthsWithGroups(namesIn(store_), key.company)) {
        const auto file = groupFile(store_, key.company, month);
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
