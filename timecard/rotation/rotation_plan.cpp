#include "timecard/rotation/rotation_plan.h"

#include <algorithm>
#include <cstdint>

namespace winvrx {

namespace {

/// The first three places are relieved by the first of two.
constexpr std::size_t kHalfOfPlaces = 3;

int floorModulo(std::int64_t value, int divisor) {
    const std::int64_t rest = value % divisor;
    return static_cast<int>(rest < 0 ? rest + divisor : rest);
}

/// Days into the rhythm that begins with `first`; 0 on a day off.
int phase(Date first, Date date, int rhythm) {
    const auto days = std::chrono::sys_days(date) - std::chrono::sys_days(first);
    return floorModulo(days.count(), rhythm);
}

bool isOff(const RotationGroup& group, std::size_t place, Date date) {
    const int rhythm = rhythmOf(group.scale);
    return group.firstDayOff && phase(*group.firstDayOff, date, rhythm) ==
                                    floorModulo(static_cast<std::int64_t>(place), rhythm);
}

bool isOff(const ReliefWorker& relief, Date date) {
    return relief.firstDayOff && phase(*relief.firstDayOff, date, rhythmOf(Scale::FiveByOne)) == 0;
}

/// The place of a 5 x 1 that is off; nullopt when nobody is.
std::optional<std::size_t> placeOff(const RotationGroup& group, Date date) {
    for (std::size_t place = 0; place < group.places.size(); ++place)
        if (group.places[place] && isOff(group, place, date)) return place;
    return std::nullopt;
}

/// Which relief worker stands in for the place.
std::size_t reliefOf(const RotationGroup& group, std::size_t place, Date date) {
    const std::size_t first = group.relief.size() > 1 && place >= kHalfOfPlaces ? 1 : 0;
    const std::size_t other = group.relief.size() - 1 - first;
    return isOff(group.relief[first], date) ? other : first;
}

PlannedDay dayOfRelief(const RotationGroup& group, std::size_t which, Date date) {
    if (isOff(group.relief[which], date)) return {.turn = Turn::Off};
    const auto place = placeOff(group, date);
    if (!place || reliefOf(group, *place, date) != which) return {};
    return {.turn = Turn::Relief, .relieved = group.places[*place]};
}

/// The first day of `month` or later that lies in the rhythm.
Date movedInto(WorkMonth month, Date first, int rhythm) {
    return plusDays(firstDay(month), (rhythm - phase(first, firstDay(month), rhythm)) % rhythm);
}

void countWorking(RotationPlan& plan) {
    plan.working.assign(static_cast<std::size_t>(daysIn(plan.month)), 0);
    for (const PlanRow& row : plan.rows)
        for (std::size_t day = 0; day < row.days.size(); ++day)
            if (row.days[day].turn == Turn::Work || row.days[day].turn == Turn::Relief)
                ++plan.working[day];
}

}  // namespace

int rhythmOf(Scale scale) {
    return scale == Scale::TwelveByThirtySix ? 2 : 6;
}

const PlanRow* RotationPlan::rowOf(const EmployeeCode& employee) const {
    const auto row = std::ranges::find(rows, employee, &PlanRow::employee);
    return row == rows.end() ? nullptr : &*row;
}

RotationPlan planOf(const RotationGroup& group, WorkMonth month, const Absence& absent) {
    RotationPlan plan{.month = month, .rows = {}, .working = {}};
    const auto add = [&](const EmployeeCode& employee, bool relief, const auto& dayOf) {
        PlanRow row{.employee = employee, .relief = relief, .days = {}};
        for (const Date date : datesOf(month)) {
            PlannedDay planned = dayOf(date);
            if (planned.turn != Turn::Off && absent && absent(employee, date))
                planned = {.turn = Turn::Away};
            row.days.push_back(planned);
        }
        plan.rows.push_back(std::move(row));
    };
    for (std::size_t place = 0; place < group.places.size(); ++place)
        if (group.places[place])
            add(*group.places[place], false, [&](Date date) {
                return PlannedDay{.turn = isOff(group, place, date) ? Turn::Off : Turn::Work};
            });
    const auto listed = static_cast<int>(plan.rows.size());
    for (std::size_t which = 0; which < group.relief.size(); ++which)
        add(group.relief[which].employee, true,
            [&](Date date) { return dayOfRelief(group, which, date); });
    plan.posts = group.scale == Scale::TwelveByThirtySix ? std::min(listed, 1) : listed;
    countWorking(plan);
    return plan;
}

std::string_view gapWord(const RotationGroup& group) {
    return group.scale == Scale::FiveByOne && group.relief.empty() ? "SEM FOLGUISTA" : "DESCOBERTO";
}

std::vector<Date> freeForRelief(const RotationGroup& group, std::size_t which, WorkMonth month) {
    std::vector<Date> free;
    if (!group.firstDayOff) return free;
    const bool alone = group.relief.size() < 2 && which == 0;
    for (int day = 0; day < rhythmOf(Scale::FiveByOne); ++day) {
        const Date date = plusDays(firstDay(month), day);
        bool taken = alone && placeOff(group, date);
        for (std::size_t other = 0; other < group.relief.size(); ++other)
            taken = taken || (other != which && isOff(group.relief[other], date));
        if (!taken) free.push_back(date);
    }
    return free;
}

RotationGroup continued(RotationGroup group, WorkMonth month) {
    const int rhythm = rhythmOf(group.scale);
    if (group.firstDayOff) group.firstDayOff = movedInto(month, *group.firstDayOff, rhythm);
    for (ReliefWorker& one : group.relief)
        if (one.firstDayOff) one.firstDayOff = movedInto(month, *one.firstDayOff, rhythm);
    return group;
}

}  // namespace winvrx
