#include "timecard/month/closing_period.h"

#include <algorithm>

namespace winvrx {

namespace {

Date endIn(WorkMonth month, int startDay) {
    const int lastDayNumber = startDay == 1 ? daysIn(month) : std::min(startDay - 1, daysIn(month));
    return plusDays(firstDay(month), lastDayNumber - 1);
}

}  // namespace

DayPeriod closingPeriod(const MonthSettings& settings) {
    const WorkMonth month = settings.month;
    if (settings.fixedMonth) return {firstDay(month), lastDay(month)};
    const WorkMonth before = month - std::chrono::months{1};
    return {plusDays(endIn(before, settings.closingDay), 1), endIn(month, settings.closingDay)};
}

}  // namespace winvrx
