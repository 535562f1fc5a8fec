#include "timecard/punches/punch_application.h"

namespace winvrx {

namespace {

void putTimes(PunchLine& line, const DaySchedule& standard, Date date,
              const Application& application) {
    const DaySchedule day = application.spread ? application.spread(standard, date) : standard;
    line.morningEntry = timeText(day.morning.entry);
    line.morningExit = timeText(day.morning.exit);
    line.afternoonEntry = timeText(day.afternoon.entry);
    line.afternoonExit = timeText(day.afternoon.exit);
}

void fillRotation(PunchLine& line, Date date, const Application& application, bool holiday) {
    const RotationTerms& rotation = *application.rotation;
    const auto& day = rotation.month.days.at(static_cast<std::size_t>(dayNumber(date)) - 1);
    if (day) {
        putTimes(line, *day, date, application);
        if (holiday) line.situation = kSituationHoliday;
    } else {
        const bool otherDay = rotation.restDay && weekdayOf(date) != *rotation.restDay;
        line.situation = otherDay ? kSituationDayOff : kSituationWeeklyRest;
    }
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
    else if (application.rotation)
        fillRotation(line, date, application, settings.isHoliday(date));
    else if (settings.isHoliday(date))
        line.situation = kSituationHoliday;
    else if (weekday == std::chrono::Sunday || weekday == application.restDay)
        line.situation = kSituationWeeklyRest;
    else if (day != DaySchedule())
        putTimes(line, day, date, application);
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
