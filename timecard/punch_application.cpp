#include "timecard/punch_application.h"

namespace winvrx {

namespace {

std::string textOf(const std::optional<TimeOfDay>& time) {
    return time ? timeText(*time) : std::string();
}

void putTimes(PunchLine& line, const DaySchedule& day) {
    line.morningEntry = textOf(day.morning.entry);
    line.morningExit = textOf(day.morning.exit);
    line.afternoonEntry = textOf(day.afternoon.entry);
    line.afternoonExit = textOf(day.afternoon.exit);
}

void fill(PunchLine& line, Date date, const StandardSchedule& schedule,
          const MonthSettings& settings) {
    if (settings.isHoliday(date))
        line.situation = kSituationHoliday;
    else if (weekdayOf(date) == std::chrono::Sunday)
        line.situation = kSituationWeeklyRest;
    else
        putTimes(line,
                 weekdayOf(date) == std::chrono::Saturday ? schedule.saturday : schedule.weekday);
}

}  // namespace

std::vector<PunchLine> filledMonth(const StandardSchedule& schedule, const MonthSettings& settings,
                                   std::optional<Date> admission) {
    std::vector<PunchLine> lines = blankMonth(settings.month);
    Date date = firstDay(settings.month);
    for (PunchLine& line : lines) {
        if (!admission || date >= *admission) fill(line, date, schedule, settings);
        date = plusDays(date, 1);
    }
    return lines;
}

}  // namespace winvrx
