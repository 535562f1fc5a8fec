#include "timecard/schedule/schedule_hours.h"

namespace winvrx {

namespace {

using std::chrono::seconds;

constexpr int kWeekdays = 5;
constexpr int kWeeksInMonthlyWage = 5;

}  // namespace

seconds lengthOf(const TimePair& pair) {
    if (!pair.complete()) return seconds::zero();
    const auto length = pair.exit->sinceMidnight - pair.entry->sinceMidnight;
    return length.count() < 0 ? length + std::chrono::hours{24} : length;
}

seconds lengthOf(const DaySchedule& day) {
    return lengthOf(day.morning) + lengthOf(day.afternoon);
}

seconds weeklyHours(const StandardSchedule& schedule) {
    const seconds week = kWeekdays * lengthOf(schedule.weekday);
    return schedule.saturdayIsNormal ? week + lengthOf(schedule.saturday) : week;
}

seconds monthlyHours(const StandardSchedule& schedule) {
    return kWeeksInMonthlyWage * weeklyHours(schedule);
}

}  // namespace winvrx
