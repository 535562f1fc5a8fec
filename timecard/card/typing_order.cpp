#include "timecard/card/typing_order.h"

#include <algorithm>

namespace winvrx {

namespace {

/// The cells of a pair, entry and exit, stand in the order of the pairs.
int pairOf(PunchCell cell) {
    return static_cast<int>(cell) / 2;
}

bool holdsSomething(const CardSheet& sheet, int day, int pair) {
    return std::any_of(kPunchCells.begin(), kPunchCells.end(), [&](PunchCell cell) {
        return isTime(cell) && pairOf(cell) == pair && !sheet.text(day, cell).empty();
    });
}

DaySchedule bothPairs() {
    const TimePair some{TimeOfDay{}, TimeOfDay{}};
    return {some, some};
}

bool hasNoSchedule(const StandardSchedule& schedule) {
    return schedule.weekday == DaySchedule() && schedule.saturday == DaySchedule();
}

/// What the day is typed for.
DaySchedule expectedOn(const CartaoPontoDados& card, int day) {
    const StandardSchedule schedule = card.schedule().schedule();
    const DayKind kind = card.days().kindOf(day);
    const Employee* one = card.selected();
    const bool rotates = one && one->scaleOr() != Scale::Normal;
    const bool atRest = kind == DayKind::WeeklyRest || kind == DayKind::Holiday;
    if (kind != DayKind::Work && !(rotates && atRest)) return {};
    if (hasNoSchedule(schedule)) return bothPairs();
    if (rotates) return schedule.weekday;
    const auto weekday = weekdayOf(plusDays(firstDay(card.settings().month), day - 1));
    return weekday == std::chrono::Saturday ? schedule.saturday : schedule.weekday;
}

}  // namespace

bool expectsTimes(const CartaoPontoDados& card, int day, PunchCell cell) {
    if (!isTime(cell)) return false;
    const int pair = pairOf(cell);
    if (holdsSomething(card.sheet(), day, pair)) return true;
    const DaySchedule expected = expectedOn(card, day);
    const TimePair none;
    return (pair == 0 && expected.morning != none) || (pair == 1 && expected.afternoon != none);
}

bool countsOnlyExtra(const CartaoPontoDados& card) {
    const auto& lines = card.sheet().lines();
    return hasNoSchedule(card.schedule().schedule()) &&
           std::any_of(lines.begin(), lines.end(), [](const PunchLine& line) {
               return line.morning().entry || line.afternoon().entry || line.extra().entry;
           });
}

}  // namespace winvrx
