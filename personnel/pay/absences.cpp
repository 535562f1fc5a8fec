#include "personnel/pay/absences.h"

#include <set>

namespace winvrx {

namespace {

constexpr int kDaysAMonth = 30;
constexpr int kDaysAWeek = 7;

Date mondayOf(Date date) {
    const int daysSince = static_cast<int>((weekdayOf(date) - std::chrono::Monday).count());
    return plusDays(date, -daysSince);
}

}  // namespace

Reckoning daysLost(Money salary, int days, std::string words) {
    if (days <= 0) return {};
    return Sum(salary).over(kDaysAMonth).times(days).rounded(std::move(words));
}

int restDaysLost(const std::vector<Date>& absences, const MonthSettings& month) {
    std::set<Date> weeks;
    for (const Date date : absences)
        weeks.insert(mondayOf(date));
    int lost = 0;
    for (const Date monday : weeks)
        for (int day = 0; day < kDaysAWeek; ++day) {
            const Date date = plusDays(monday, day);
            const bool isHoliday = monthOf(date) == month.month && month.isHoliday(date);
            if (isHoliday || weekdayOf(date) == std::chrono::Sunday) ++lost;
        }
    return lost;
}

MonthDayCounts countPayDays(const PayrollLaw& law, const MonthSettings& month) {
    MonthDayCounts counts = countDays(month);
    if (law.settings.saturdayIsWorkingDay) return counts;
    for (Date date = firstDay(month.month); monthOf(date) == month.month; date = plusDays(date, 1))
        if (weekdayOf(date) == std::chrono::Saturday && !isRestDay(month, date)) {
            --counts.businessDays;
            ++counts.restDays;
        }
    return counts;
}

}  // namespace winvrx
