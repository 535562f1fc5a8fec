#include "timecard/rotation/rotation_group.h"

#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kNumberDigits = 3;
constexpr std::size_t kMonthDigits = 6;

constexpr std::array<std::string GroupRecord::*, kMostPlaces> kPlaces = {
    &GroupRecord::place1, &GroupRecord::place2, &GroupRecord::place3,
    &GroupRecord::place4, &GroupRecord::place5, &GroupRecord::place6};

struct ReliefFields {
    std::string GroupRecord::*employee;
    std::string GroupRecord::*firstDayOff;
};
constexpr std::array<ReliefFields, kMostReliefWorkers> kReliefFields = {
    ReliefFields{&GroupRecord::relief, &GroupRecord::reliefDayOff},
    ReliefFields{&GroupRecord::secondRelief, &GroupRecord::secondReliefDayOff}};

std::optional<int> numberOf(std::string_view name) {
    if (!name.starts_with(kGroupStem)) return std::nullopt;
    const auto code = DigitCode<kNumberDigits>::parse(name.substr(kGroupStem.size()));
    return code && code->number() > 0 ? std::optional(code->number()) : std::nullopt;
}

bool takePlaces(RotationGroup& group, const GroupRecord& record) {
    for (const auto place : kPlaces) {
        const std::string& text = record.*place;
        const auto employee = EmployeeCode::parse(text);
        if (!text.empty() && (!employee || group.contains(*employee))) return false;
        group.places.push_back(employee);
    }
    group.dropVacantEnd();
    return true;
}

bool takeRelief(RotationGroup& group, const GroupRecord& record) {
    for (const ReliefFields& fields : kReliefFields) {
        const std::string& text = record.*fields.employee;
        if (text.empty()) continue;
        const auto employee = EmployeeCode::parse(text);
        const auto firstDayOff = parseDate(record.*fields.firstDayOff);
        if (!employee || !firstDayOff || group.contains(*employee)) return false;
        group.relief.push_back({*employee, firstDayOff});
    }
    return true;
}

}  // namespace

std::vector<EmployeeCode> RotationGroup::members() const {
    std::vector<EmployeeCode> members;
    for (const auto& place : places)
        if (place) members.push_back(*place);
    for (const ReliefWorker& one : relief)
        members.push_back(one.employee);
    return members;
}

std::size_t RotationGroup::listed() const {
    return places.size() -
           static_cast<std::size_t>(std::ranges::count(places, std::optional<EmployeeCode>()));
}

bool RotationGroup::contains(const EmployeeCode& employee) const {
    return std::ranges::count(places, std::optional(employee)) > 0 ||
           std::ranges::count(relief, employee, &ReliefWorker::employee) > 0;
}

void RotationGroup::remove(const EmployeeCode& employee) {
    std::ranges::replace(places, std::optional(employee), std::optional<EmployeeCode>());
    dropVacantEnd();
    std::erase_if(relief, [&](const ReliefWorker& one) { return one.employee == employee; });
}

void RotationGroup::dropVacantEnd() {
    while (!places.empty() && !places.back())
        places.pop_back();
}

std::string groupName(int number) {
    return std::string(kGroupStem) + padded(number, kNumberDigits);
}

std::string_view scaleTitle(Scale rotation) {
    return rotation == Scale::TwelveByThirtySix ? "12 x 36" : "5 x 1";
}

std::string titleOf(const RotationGroup& group) {
    return joined({groupName(group.number), scaleTitle(group.scale), codeOf(group.shift),
                   countOf(group.members().size(), "funcionário")},
                  "  ");
}

std::size_t mostPlacesOf(Shift shift) {
    return shift == Shift::Um || shift == Shift::Tres ? 3 : kMostPlaces;
}

GroupRecord recordOf(const RotationGroup& group) {
    const auto textOf = [](const std::optional<Date>& date) {
        return date ? dateText(*date) : std::string();
    };
    GroupRecord record;
    record.name = groupName(group.number);
    record.shift = codeOf(group.shift);
    record.scale = codeOf(group.scale);
    record.firstDayOff = textOf(group.firstDayOff);
    for (std::size_t at = 0; at < group.relief.size() && at < kMostReliefWorkers; ++at) {
        record.*kReliefFields[at].employee = group.relief[at].employee.text();
        record.*kReliefFields[at].firstDayOff = textOf(group.relief[at].firstDayOff);
    }
    for (std::size_t at = 0; at < group.places.size() && at < kMostPlaces; ++at)
        if (group.places[at]) record.*kPlaces[at] = group.places[at]->text();
    return record;
}

std::optional<RotationGroup> groupOf(const GroupRecord& record) {
    const auto number = numberOf(record.name);
    const auto shift = parseShift(record.shift);
    const auto scale = parseScale(record.scale);
    const auto firstDayOff = parseDate(record.firstDayOff);
    if (!number || !shift || !scale || *scale == Scale::Normal || !firstDayOff) return std::nullopt;
    RotationGroup group{
        .number = *number, .shift = *shift, .scale = *scale, .firstDayOff = firstDayOff};
    if (!takePlaces(group, record) || !takeRelief(group, record)) return std::nullopt;
    return group;
}

std::optional<int> keyOf(const GroupRecord& record) {
    const auto group = groupOf(record);
    return group ? std::optional(group->number) : std::nullopt;
}

std::string groupFileName(WorkMonth month) {
    const std::string key = monthKey(month);
    return std::string(kGroupStem) + key.substr(0, 2) + key.substr(3) + ".rdx";
}

std::vector<WorkMonth> monthsWithGroups(const FolderNames& names, const CompanyCode& company) {
    const std::string beginning = company.text() + std::string(kGroupStem);
    std::vector<WorkMonth> months;
    for (const std::string& name : beginningWith(names, beginning)) {
        std::string key = name.substr(beginning.size(), kMonthDigits);
        if (key.size() == kMonthDigits) key.insert(2, "-");
        const auto month = parseMonthKey(key);
        if (month && name == company.text() + groupFileName(*month)) months.push_back(*month);
    }
    return months;
}

LineFile<GroupRecord> groupFile(const Store& store, const CompanyCode& company, WorkMonth month) {
    return LineFile<GroupRecord>({store, company, groupFileName(month)});
}

std::vector<RotationGroup> groupsIn(const GroupLines& lines) {
    std::vector<RotationGroup> groups;
    for (const GroupLine& line : lines) {
        auto group = groupOf(line.record);
        const auto isSame = [&](const RotationGroup& one) { return one.number == group->number; };
        if (group && std::ranges::none_of(groups, isSame)) groups.push_back(*std::move(group));
    }
    return groups;
}

std::vector<RotationGroup> groupsOf(const Store& store, const CompanyCode& company,
                                    WorkMonth month) {
    return groupsIn(groupFile(store, company, month).load());
}

}  // namespace winvrx
