#include "timecard/month/closing_period.h"

#include <algorithm>

namespace winvrx {

DayPeriod closingPeriod(const MonthSettings& settings) {
    const WorkMonth month = settings.month;
    if (settings.fixedMonth) return {firstDay(month), lastDay(month)};
    const auto endIn = [start = settings.closingDay](WorkMonth one) {
        const int last = start == 1 ? daysIn(one) : std::min(start - 1, daysIn(one));
        return plusDays(firstDay(one), last - 1);
    };
    return {plusDays(endIn(month - kOneMonth), 1), endIn(month)};
}

}  // namespace winvrx
