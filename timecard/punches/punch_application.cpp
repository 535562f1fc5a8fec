#include "timecard/punches/punch_application.h"

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

void fill(PunchLine& line, Date date, const Application& application,
          const MonthSettings& settings) {
    const Standing standing = application.leaves.standingOn(date);
    if (!isWithinContract(standing)) return;
    const auto weekday = weekdayOf(date);
    const bool saturday = weekday == std::chrono::Saturday;
    const StandardSchedule& schedule = application.schedule;
    const DaySchedule& day = saturday ? schedule.saturday : schedule.weekday;
    if (standing == Standing::OnLeave)
        line.situation = kSituationLeave;
    else if (settings.isHoliday(date))
        line.situation = kSituationHoliday;
    else if (weekday == std::chrono::Sunday)
        line.situation = kSituationWeeklyRest;
    else if (day != DaySchedule())
        putTimes(line, application.spread ? application.spread(day, date) : day);
    else if (!saturday)
        line.situation = application.situation;
}

}  // namespace

std::vector<PunchLine> filledMonth(const Application& application, const MonthSettings& settings) {
    std::vector<PunchLine> lines = blankMonth(settings.month);
    Date date = firstDay(settings.month);
    for (PunchLine& line : lines) {
        fill(line, date, application, settings);
        date = plusDays(date, 1);
    }
    return lines;
}

bool leavesWorkBlank(const StandardSchedule& schedule) {
    return schedule.weekday == DaySchedule();
}

}  // namespace winvrx
