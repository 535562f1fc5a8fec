#include "timecard/rotation/rotation_checks.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

/// Further back no Sunday is looked at: in 5 x 1 one of six is off.
constexpr int kMostSundays = 6;
constexpr int kDaysOfWeek = 7;

/// Whether he is off on the day, counted from 0, of the month; one before it, below 0, is as the
/// month's day of the same place in the rhythm.
bool isOff(const PlanRow& row, int day, int rhythm) {
    const int same = day >= 0 ? day : (rhythm - -day % rhythm) % rhythm;
    return row.days.at(static_cast<std::size_t>(same)).turn == Turn::Off;
}

int sundaysWorkedUpTo(const PlanRow& row, int day, int rhythm) {
    int worked = 0;
    while (worked < kMostSundays && !isOff(row, day - worked * kDaysOfWeek, rhythm))
        ++worked;
    return worked;
}

/// How many of these days go by before the first one off.
template <typename Place>
std::optional<int> workedBeforeOff(Place first, Place end) {
    const auto off =
        std::find_if(first, end, [](const auto& day) { return day.turn == Turn::Off; });
    return off == end ? std::nullopt : std::optional(static_cast<int>(off - first));
}

std::string listOf(const std::vector<Date>& dates) {
    std::string text;
    for (std::size_t at = 0; at < dates.size(); ++at)
        text.append(at == 0                  ? ""
                    : at + 1 == dates.size() ? " ou "
                                             : ", ")
            .append(padded(dayNumber(dates[at]), 2));
    return text;
}

/// Whether the date is one of those days of the rhythm.
bool isAmong(const std::vector<Date>& days, Date date, int rhythm) {
    return std::ranges::any_of(days, [&](Date day) {
        return (std::chrono::sys_days(date) - std::chrono::sys_days(day)).count() % rhythm == 0;
    });
}

}  // namespace

std::vector<SundayRun> sundayRuns(const RotationGroup& group, WorkMonth month) {
    std::vector<SundayRun> runs;
    const int rhythm = rhythmOf(group.scale);
    for (const PlanRow& row : planOf(group, month).rows) {
        SundayRun run{.employee = row.employee};
        for (const Date date : datesOf(month)) {
            if (weekdayOf(date) != std::chrono::Sunday) continue;
            const int worked = sundaysWorkedUpTo(row, dayNumber(date) - 1, rhythm);
            if (worked > run.worked) run = {row.employee, worked, date};
        }
        if (run.breaksEverySecond()) runs.push_back(run);
    }
    return runs;
}

std::vector<BrokenRhythm> brokenRhythms(const std::vector<RotationGroup>& before,
                                        const RotationGroup& group, WorkMonth month) {
    std::vector<BrokenRhythm> broken;
    std::vector<PlanRow> earlier;
    for (const RotationGroup& one : before) {
        if (one.scale != group.scale) continue;
        for (PlanRow& row : planOf(one, month - kOneMonth).rows)
            earlier.push_back(std::move(row));
    }
    const int wanted = rhythmOf(group.scale) - 1;
    for (const PlanRow& row : planOf(group, month).rows) {
        const auto was = std::ranges::find(earlier, row.employee, &PlanRow::employee);
        if (was == earlier.end()) continue;
        const auto atTheEnd = workedBeforeOff(was->days.rbegin(), was->days.rend());
        const auto first = workedBeforeOff(row.days.begin(), row.days.end());
        if (atTheEnd && first && *atTheEnd + *first != wanted)
            broken.push_back({row.employee, *atTheEnd + *first, wanted});
    }
    return broken;
}

std::optional<std::string> reliefCountFinding(const RotationGroup& group) {
    if (group.relief.empty()) return std::nullopt;
    const bool full = group.listed() == kMostPlaces;
    if (full && group.relief.size() < kMostReliefWorkers)
        return "Com seis funcionários na lista alguém folga todo dia e não sobra folga para o "
               "folguista. Informe um segundo folguista, ou deixe cinco na lista.";
    if (!full && group.relief.size() > 1)
        return "O segundo folguista é para uma lista de seis funcionários.";
    return std::nullopt;
}

std::optional<std::string> reliefFinding(const RotationGroup& group, WorkMonth month) {
    const bool full = group.listed() == kMostPlaces;
    for (std::size_t which = 0; which < group.relief.size(); ++which) {
        const auto free = freeForRelief(group, which, month);
        if (!isAmong(free, *group.relief[which].firstDayOff, rhythmOf(group.scale)))
            return (full ? "Os dois folguistas folgariam no mesmo dia. Dias livres: "
                         : "Na folga do folguista ninguém mais pode folgar. Dias livres: ") +
                   listOf(free) + ", e de seis em seis dias.";
    }
    return std::nullopt;
}

}  // namespace winvrx
