#include "personnel/pay/partial_month.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kDaysAMonth = 30;

int divisorOf(const MonthPart& part, PartialMonth method) {
    return method == PartialMonth::MonthLength ? daysIn(part.month()) : kDaysAMonth;
}

/// Of the calendar, or of a month of thirty days.
int paidDays(const MonthPart& part, PartialMonth method) {
    const int calendar = part.calendarDays();
    if (method != PartialMonth::CommercialDays || calendar == 0) return calendar;
    const bool endsMonth = part.last == lastDay(part.month());
    const int end = endsMonth ? kDaysAMonth : std::min(dayNumber(part.last), kDaysAMonth);
    // A day that was worked is paid, the 31st too.
    return std::max(1, end - (dayNumber(part.first) - 1) - part.daysAway);
}

}  // namespace

MonthPart wholeMonth(WorkMonth month) {
    return {firstDay(month), lastDay(month)};
}

std::optional<MonthPart> employedPart(WorkMonth month, Date admission,
                                      std::optional<Date> dismissal) {
    MonthPart part = wholeMonth(month);
    part.first = std::max(part.first, admission);
    if (dismissal) part.last = std::min(part.last, *dismissal);
    if (part.first > part.last) return std::nullopt;
    return part;
}

Fraction paidShare(const MonthPart& part, PartialMonth method) {
    if (part.isWhole()) return 1;
    return std::min(Fraction(1), Fraction(paidDays(part, method), divisorOf(part, method)));
}

Reckoning partialSalary(Money salary, const MonthPart& part, PartialMonth method,
                        std::string words) {
    if (paidShare(part, method) == Fraction(1)) return Sum(salary).rounded(std::move(words));
    return Sum(salary)
        .over(divisorOf(part, method))
        .times(paidDays(part, method))
        .rounded(std::move(words));
}

}  // namespace winvrx
