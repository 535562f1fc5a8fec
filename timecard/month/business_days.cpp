#include "timecard/month/business_days.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace winvrx {

namespace {

using namespace std::string_view_literals;

constexpr std::array kOrdinals = {"PRIMEIRO"sv, "SEGUNDO"sv, "TERCEIRO"sv, "QUARTO"sv, "QUINTO"sv};
constexpr std::string_view kLast = "ÚLTIMO";
constexpr std::string_view kOrdinalEnd = " Dia Últil do Mes";
constexpr std::string_view kNumberEnd = "º Dia Útil do Mes de ";
constexpr std::string_view kTodayIs = "Hoje é o ";
constexpr std::string_view kTodayIsDay = "Hoje é o(a) ";
constexpr std::string_view kOfMonthAnd = " do Mês e, ";
constexpr std::string_view kToday = "Hoje, ";
constexpr std::string_view kTomorrow = "Para Amanhã, ";
constexpr std::string_view kDayAfterTomorrow = "Para Depois de Amanhã, ";
constexpr std::string_view kLater = "Para, ";
constexpr std::string_view kDay = " dia ";
constexpr std::string_view kNoBusinessDay = ", não é Dia Útil do Mes";
constexpr std::size_t kDaysAhead = 3;

std::vector<Date> businessDaysOf(const MonthSettings& settings) {
    std::vector<Date> dates;
    for (int day = 0; day < daysIn(settings.month); ++day) {
        const Date date = plusDays(firstDay(settings.month), day);
        if (!isRestDay(settings, date)) dates.push_back(date);
    }
    return dates;
}

/// A business day as the notices call it.
struct NamedDay {
    Date date;
    bool hasOrdinal;   ///< one of the first five, or the last
    std::string name;  ///< "SEGUNDO Dia Últil do Mes", "9º Dia Útil do Mes de março"
};

std::vector<NamedDay> namedBusinessDays(const MonthSettings& settings) {
    std::vector<NamedDay> named;
    const std::vector<Date> dates = businessDaysOf(settings);
    for (std::size_t i = 0; i < dates.size(); ++i) {
        const bool isLast = i + 1 == dates.size();
        if (i < kOrdinals.size() || isLast)
            named.push_back(
                {dates[i], true,
                 std::string(i < kOrdinals.size() ? kOrdinals[i] : kLast).append(kOrdinalEnd)});
        else
            named.push_back({dates[i], false,
                             std::to_string(i + 1)
                                 .append(kNumberEnd)
                                 .append(monthName(settings.month.month()))});
    }
    return named;
}

std::string todayLine(const NamedDay& day) {
    if (day.hasOrdinal) return std::string(kTodayIs).append(day.name);
    return std::string(kTodayIsDay)
        .append(std::to_string(dayNumber(day.date)))
        .append(kOfMonthAnd)
        .append(day.name);
}

std::string_view lookAheadStart(Date today, Date date) {
    if (date == plusDays(today, 1)) return kTomorrow;
    return date == plusDays(today, 2) ? kDayAfterTomorrow : kLater;
}

std::string lookAheadLine(Date today, const NamedDay& day) {
    return std::string(lookAheadStart(today, day.date))
        .append(kDay)
        .append(dateText(day.date))
        .append(", ")
        .append(day.name);
}

}  // namespace

bool isRestDay(const MonthSettings& settings, Date date) {
    return weekdayOf(date) == std::chrono::Sunday || settings.isHoliday(date);
}

MonthDayCounts countDays(const MonthSettings& settings) {
    const auto businessDays = static_cast<int>(businessDaysOf(settings).size());
    return {businessDays, daysIn(settings.month) - businessDays};
}

std::vector<std::string> businessDayNotices(const MonthSettings& present, const MonthSettings& next,
                                            Date today) {
    std::vector<std::string> lines;
    if (isRestDay(present, today))
        lines.push_back(
            std::string(kToday).append(kDay).append(dateText(today)).append(kNoBusinessDay));
    std::vector<NamedDay> days = namedBusinessDays(present);
    std::ranges::move(namedBusinessDays(next), std::back_inserter(days));
    for (const NamedDay& day : days) {
        if (day.date < today || lines.size() > kDaysAhead) continue;
        lines.push_back(day.date == today ? todayLine(day) : lookAheadLine(today, day));
    }
    return lines;
}

}  // namespace winvrx
