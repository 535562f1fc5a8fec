#include "timecard/month/business_days.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace winvrx {

namespace {

constexpr std::array<std::string_view, 5> kOrdinals = {"PRIMEIRO", "SEGUNDO", "TERCEIRO", "QUARTO",
                                                       "QUINTO"};
constexpr std::size_t kDaysAhead = 3;

std::vector<Date> businessDaysOf(const MonthSettings& settings) {
    std::vector<Date> dates = datesOf(settings.month);
    std::erase_if(dates, [&](Date date) { return isRestDay(settings, date); });
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
        const bool isEarly = i < kOrdinals.size();
        const bool hasOrdinal = isEarly || i + 1 == dates.size();
        const std::string name =
            hasOrdinal ? std::string(isEarly ? kOrdinals[i] : "ÚLTIMO") + " Dia Últil do Mes"
                       : std::to_string(i + 1) + "º Dia Útil do Mes de " +
                             std::string(monthName(settings.month.month()));
        named.push_back({dates[i], hasOrdinal, name});
    }
    return named;
}

std::string todayLine(const NamedDay& day) {
    if (day.hasOrdinal) return "Hoje é o " + day.name;
    return "Hoje é o(a) " + std::to_string(dayNumber(day.date)) + " do Mês e, " + day.name;
}

std::string lookAheadLine(Date today, const NamedDay& day) {
    const std::string when = day.date == plusDays(today, 1)   ? "Amanhã"
                             : day.date == plusDays(today, 2) ? "Depois de Amanhã"
                                                              : "";
    return (when.empty() ? "Para" : "Para " + when) + ",  dia " + dateText(day.date) + ", " +
           day.name;
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
        lines.push_back("Hoje,  dia " + dateText(today) + ", não é Dia Útil do Mes");
    std::vector<NamedDay> days = namedBusinessDays(present);
    std::ranges::move(namedBusinessDays(next), std::back_inserter(days));
    for (const NamedDay& day : days) {
        if (day.date < today || lines.size() > kDaysAhead) continue;
        lines.push_back(day.date == today ? todayLine(day) : lookAheadLine(today, day));
    }
    return lines;
}

}  // namespace winvrx
