#include "personnel/pay/vacation_rules.h"

#include "personnel/leaves/leave_types.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace winvrx {

namespace {

constexpr int kMonthsAYear = 12;
constexpr int kDaysAMonth = 30;
constexpr int kMostPaidLeave = 30;
constexpr int kMostIllness = 6 * kDaysAMonth;
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

/// Whole months and the days behind them.
struct Span {
    int months = 0;
    int days = 0;
};

Span spanOf(Date first, Date last) {
    Span span;
    while (plusDays(plusMonths(first, span.months + 1), -1) <= last)
        ++span.months;
    const auto rest =
        std::chrono::sys_days(last) - std::chrono::sys_days(plusMonths(first, span.months));
    span.days = static_cast<int>(rest.count()) + 1;
    return span;
}

/// A month counts thirty days, whatever its length: six whole ones are no more than six.
int daysByMonths(Date first, Date last) {
    const Span span = spanOf(first, last);
    return span.months * kDaysAMonth + span.days;
}

/// The days that count against the period; nullopt where none do.
std::optional<LeavePeriod> countedIn(const TimeAway& away, const AcquisitionPeriod& period) {
    if (away.kind == TimeAway::Kind::Other) return std::nullopt;
    Date first = away.days.first;
    if (away.kind == TimeAway::Kind::Illness) first = plusDays(first, kIllnessDaysPaid);
    const LeavePeriod in{std::max(first, period.first), std::min(away.days.last, period.last)};
    return in.first <= in.last ? std::optional(in) : std::nullopt;
}

struct Loss {
    Forfeit cause = Forfeit::Illness;
    Date day{};  ///< the first that is too many
};

std::optional<Loss> lossIn(const AcquisitionPeriod& period, const std::vector<TimeAway>& away) {
    int ill = 0;
    for (const TimeAway& one : away) {
        const auto in = countedIn(one, period);
        if (!in) continue;
        if (one.kind == TimeAway::Kind::PaidLeave) {
            const Date day = plusDays(in->first, kMostPaidLeave);
            if (day <= in->last) return Loss{Forfeit::PaidLeave, day};
            continue;
        }
        for (Date day = in->first; day <= in->last; day = plusDays(day, 1))
            if (ill + daysByMonths(in->first, day) > kMostIllness)
                return Loss{Forfeit::Illness, day};
        ill += daysByMonths(in->first, in->last);
    }
    return std::nullopt;
}

Date returnAfter(Date day, const std::vector<TimeAway>& away) {
    Date back = plusDays(day, 1);
    for (bool isAway = true; isAway;) {
        isAway = false;
        for (const TimeAway& one : away) {
            if (!one.days.contains(back)) continue;
            back = plusDays(one.days.last, 1);
            isAway = true;
        }
    }
    return back;
}

/// Whether a vacation is on record of the `year`-th year from `start`, or of one that follows.
bool isOnRecord(const std::vector<Date>& recorded, Date start, int year) {
    return std::ranges::any_of(recorded, [&](Date first) {
        Date of{};
        for (int at = year; (of = acquisitionPeriod(start, at).first) < first;)
            ++at;
        return of == first;
    });
}

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

std::vector<AcquisitionPeriod> acquisitionPeriods(const AcquisitionCount& of, Date date) {
    std::vector<AcquisitionPeriod> periods;
    Date start = of.admission;
    for (int number = 1, year = 1;; ++number, ++year) {
        AcquisitionPeriod period = acquisitionPeriod(start, year);
        period.number = number;
        if (period.first > date) return periods;
        const auto loss = lossIn(period, of.away);
        if (loss && loss->day <= date && !isOnRecord(of.recorded, start, year)) {
            start = returnAfter(loss->day, of.away);
            year = 0;
            period.forfeit = loss->cause;
            period.last = period.limit = plusDays(start, -1);
        }
        periods.push_back(period);
    }
}

std::optional<AcquisitionPeriod> runningPeriod(const AcquisitionCount& of, Date date) {
    const auto periods = acquisitionPeriods(of, date);
    if (periods.empty() || periods.back().forfeit) return std::nullopt;
    return periods.back();
}

std::string forfeitText(const AcquisitionPeriod& period) {
    if (!period.forfeit) return {};
    const std::string cause =
        *period.forfeit == Forfeit::PaidLeave
            ? "mais de 30 dias seguidos de licença remunerada no período (CLT, art. 133, II e III)"
            : "mais de 6 meses de auxílio-doença ou acidente no período (CLT, art. 133, IV)";
    return "Férias perdidas: " + cause + ". O novo período começa na volta ao trabalho, em " +
           dateText(plusDays(period.last, 1)) + ".";
}

int vacationTwelfths(Date first, Date last) {
    const Span span = spanOf(first, last);
    return span.months + (span.days >= kDaysThatCount ? 1 : 0);
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
