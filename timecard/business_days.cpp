#include "timecard/business_days.h"

#include <array>

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

/// "PRIMEIRO" to "QUINTO" and "ÚLTIMO"; empty for a business day known by its number. `position`
/// counts from 0.
std::string_view ordinalOf(std::size_t position, std::size_t businessDays) {
    if (position < kOrdinals.size()) return kOrdinals[position];
    return position + 1 == businessDays ? kLast : std::string_view();
}

std::string numberText(Date date, std::size_t position) {
    return std::to_string(position + 1).append(kNumberEnd).append(monthName(date.month()));
}

std::string todayLine(Date today, std::size_t position, std::size_t businessDays) {
    const std::string_view ordinal = ordinalOf(position, businessDays);
    if (!ordinal.empty()) return std::string(kTodayIs).append(ordinal).append(kOrdinalEnd);
    return std::string(kTodayIsDay)
        .append(std::to_string(dayNumber(today)))
        .append(kOfMonthAnd)
        .append(numberText(today, position));
}

std::string_view lookAheadStart(Date today, Date date) {
    if (date == plusDays(today, 1)) return kTomorrow;
    return date == plusDays(today, 2) ? kDayAfterTomorrow : kLater;
}

std::string lookAheadLine(Date today, Date date, std::size_t position, std::size_t businessDays) {
    std::string line(lookAheadStart(today, date));
    line.append(kDay).append(dateText(date)).append(", ");
    const std::string_view ordinal = ordinalOf(position, businessDays);
    return ordinal.empty() ? line.append(numberText(date, position))
                           : line.append(ordinal).append(kOrdinalEnd);
}

}  // namespace

bool isRestDay(const MonthSettings& settings, Date date) {
    return weekdayOf(date) == std::chrono::Sunday || settings.isHoliday(date);
}

MonthDayCounts countDays(const MonthSettings& settings) {
    const auto businessDays = static_cast<int>(businessDaysOf(settings).size());
    return {businessDays, daysIn(settings.month) - businessDays};
}

std::vector<std::string> businessDayNotices(const MonthSettings& settings, Date today) {
    std::vector<std::string> lines;
    if (monthOf(today) != settings.month) return lines;
    if (isRestDay(settings, today))
        lines.push_back(
            std::string(kToday).append(kDay).append(dateText(today)).append(kNoBusinessDay));
    const std::vector<Date> dates = businessDaysOf(settings);
    for (std::size_t i = 0; i < dates.size() && lines.size() <= kDaysAhead; ++i) {
        if (dates[i] == today)
            lines.push_back(todayLine(today, i, dates.size()));
        else if (dates[i] > today)
            lines.push_back(lookAheadLine(today, dates[i], i, dates.size()));
    }
    return lines;
}

}  // namespace winvrx
