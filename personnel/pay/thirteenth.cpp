#include "personnel/pay/thirteenth.h"

#include "personnel/pay/partial_month.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kMonthsAYear = 12;
constexpr int kDaysThatCount = 15;

}  // namespace

int thirteenthTwelfths(std::chrono::year year, Date admission, Date end,
                       const std::vector<Date>& absences) {
    int twelfths = 0;
    for (unsigned number = 1; number <= kMonthsAYear; ++number) {
        const WorkMonth month = year / std::chrono::month{number};
        const auto part = employedPart(month, admission, end);
        if (!part) continue;
        const auto absent = std::ranges::count_if(
            absences, [&](Date date) { return part->first <= date && date <= part->last; });
        if (part->calendarDays() - absent >= kDaysThatCount) ++twelfths;
    }
    return twelfths;
}

Reckoning thirteenthOf(Money salary, Money averages, int twelfths, std::string words) {
    return Sum({salary, averages}).over(kMonthsAYear).times(twelfths).rounded(std::move(words));
}

Date secondInstalmentDue(std::chrono::year year) {
    return year / std::chrono::December / 20;
}

}  // namespace winvrx
