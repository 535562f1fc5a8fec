#include "timecard/hours/hours.h"

#include <algorithm>
#include <utility>

namespace winvrx {

using std::chrono::seconds;

HourTotals& HourTotals::operator+=(const HourTotals& other) {
    for (const HourCategory category : kHourCategories)
        (*this)[category] += other[category];
    return *this;
}

seconds HourTotals::normal() const {
    return (*this)[HourCategory::NormalDay] + (*this)[HourCategory::NormalNight];
}

seconds HourTotals::nightExtra() const {
    return (*this)[HourCategory::NightExtraMinimum] + (*this)[HourCategory::NightExtraMaximum];
}

seconds HourTotals::extra() const {
    return (*this)[HourCategory::ExtraMinimum] + (*this)[HourCategory::ExtraMaximum] + nightExtra();
}

bool WorkTerms::isHoliday(Date date) const {
    return std::find(holidays.begin(), holidays.end(), date) != holidays.end();
}

WorkTerms workTerms(const MonthSettings& settings, const OvertimeRules& overtime,
                    const StandardSchedule& schedule, const Employee& employee,
                    LeaveCalendar leaves) {
    return {schedule.weekday,
            schedule.saturday,
            schedule.saturdayIsNormal,
            restByCalendar(employee),
            std::move(leaves),
            settings.holidays(),
            overtime};
}

HourTotals periodHours(std::span<const PunchLine> lines, Date first, const WorkTerms& terms,
                       std::optional<HalfMonth> half) {
    HourTotals totals;
    std::chrono::sys_days day{first};
    for (const PunchLine& line : lines) {
        const Date date{day++};
        if (!half || halfOf(date) == *half) totals += dayHours(line, date, terms);
    }
    return totals;
}

}  // namespace winvrx
