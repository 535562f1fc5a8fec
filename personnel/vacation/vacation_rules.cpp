#include "personnel/vacation/vacation_rules.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace winvrx {

namespace {

constexpr int kMonthsAYear = 12;
constexpr int kDaysThatCount = 15;
constexpr int kNoticeDays = 30;
constexpr int kPaymentDays = 2;
constexpr int kSaleRequestDays = 15;
constexpr std::size_t kMostFractions = 3;
constexpr int kLongFraction = 14;
constexpr int kShortestFraction = 5;

struct DaysByAbsences {
    int upTo;
    int days;
};
constexpr std::array kDaysByAbsences = {DaysByAbsences{5, 30}, DaysByAbsences{14, 24},
                                        DaysByAbsences{23, 18}, DaysByAbsences{32, 12}};

}  // namespace

Date plusMonths(Date date, int months) {
    const Date moved = date + std::chrono::months{months};
    return moved.ok() ? moved : plusDays(lastDay(monthOf(moved)), 1);
}

int vacationDays(int absences) {
    for (const DaysByAbsences& row : kDaysByAbsences)
        if (absences <= row.upTo) return row.days;
    return 0;
}

AcquisitionPeriod acquisitionPeriod(Date admission, int number) {
    const auto boundary = [&](int years) { return plusMonths(admission, years * kMonthsAYear); };
    return {number, boundary(number - 1), plusDays(boundary(number), -1),
            plusDays(boundary(number + 1), -1)};
}

std::vector<AcquisitionPeriod> acquisitionPeriods(Date admission, Date date) {
    std::vector<AcquisitionPeriod> periods;
    for (int number = 1;; ++number) {
        const AcquisitionPeriod period = acquisitionPeriod(admission, number);
        if (period.first > date) return periods;
        periods.push_back(period);
    }
}

int vacationTwelfths(Date first, Date last) {
    int whole = 0;
    while (plusDays(plusMonths(first, whole + 1), -1) <= last)
        ++whole;
    const auto rest = std::chrono::sys_days(last) - std::chrono::sys_days(plusMonths(first, whole));
    return whole + (rest.count() + 1 >= kDaysThatCount ? 1 : 0);
}

int daysPastLimit(const AcquisitionPeriod& period, Date start, int days) {
    const Date last = plusDays(start, days - 1);
    const auto past = std::chrono::sys_days(last) - std::chrono::sys_days(period.limit);
    return std::clamp(static_cast<int>(past.count()), 0, days);
}

std::optional<std::string> fractionsProblem(int granted, const std::vector<int>& fractions,
                                            int sold) {
    if (sold * 3 > granted) return "Só se pode vender até um terço das férias (CLT, art. 143).";
    if (std::accumulate(fractions.begin(), fractions.end(), sold) != granted)
        return "Os períodos e os dias vendidos devem somar " + std::to_string(granted) + " dias.";
    if (fractions.size() <= 1) return std::nullopt;
    if (fractions.size() > kMostFractions)
        return "As férias podem ter até três períodos (CLT, art. 134).";
    if (std::ranges::max(fractions) < kLongFraction)
        return "Um dos períodos deve ter ao menos 14 dias (CLT, art. 134).";
    if (std::ranges::min(fractions) < kShortestFraction)
        return "Nenhum período pode ter menos de 5 dias (CLT, art. 134).";
    return std::nullopt;
}

Date vacationNoticeDue(Date start) {
    return plusDays(start, -kNoticeDays);
}

Date vacationPaymentDue(Date start) {
    return plusDays(start, -kPaymentDays);
}

Date saleRequestDue(const AcquisitionPeriod& period) {
    return plusDays(period.last, -kSaleRequestDays);
}

}  // namespace winvrx
