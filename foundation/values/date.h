#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Calendar dates, work months and times of day, as people here write them: day first, 24-hour
// clock. Parsing is strict: what is not a date is no Date.
//
//     if (const auto admission = parseDate("12/03/2024")) use(*admission);
//     dateText(*admission)             "12/03/2024"
//     monthKey(2024y / 3)              "03-2024"
//     timeText(*parseTime("08:00"))    "08:00"

namespace winvrx {

using Date = std::chrono::year_month_day;
using WorkMonth = std::chrono::year_month;

inline constexpr std::chrono::months kOneMonth{1};

/// Minutes since midnight, 0 to 1439.
struct TimeOfDay {
    std::chrono::minutes sinceMidnight{0};

    [[nodiscard]] auto operator<=>(const TimeOfDay&) const = default;
};

/// "dd/mm/yyyy" to a date; nullopt for anything else, impossible days included.
[[nodiscard]] std::optional<Date> parseDate(std::string_view text);
[[nodiscard]] std::string dateText(Date date);

/// "hh:mm" from "00:00" to "23:59"; nullopt for anything else.
[[nodiscard]] std::optional<TimeOfDay> parseTime(std::string_view text);
[[nodiscard]] std::string timeText(TimeOfDay time);
/// Empty where there is none.
[[nodiscard]] std::string timeText(const std::optional<TimeOfDay>& time);

/// "mm-yyyy", the form in file names; nullopt for anything else.
[[nodiscard]] std::optional<WorkMonth> parseMonthKey(std::string_view text);
[[nodiscard]] std::string monthKey(WorkMonth month);

/// "março/2024".
[[nodiscard]] std::string monthTitle(WorkMonth month);

/// "janeiro" … "dezembro".
[[nodiscard]] std::string_view monthName(std::chrono::month month);

/// "dom", "seg", "ter", "qua", "qui", "sex", "sáb".
[[nodiscard]] std::string_view weekdayShort(std::chrono::weekday weekday);

/// "domingo" … "sábado".
[[nodiscard]] std::string_view weekdayName(std::chrono::weekday weekday);

/// "dd/ddd/mmm", ten characters: "05/ter/mar".
[[nodiscard]] std::string dayLabel(Date date);

[[nodiscard]] WorkMonth monthOf(Date date);
[[nodiscard]] Date firstDay(WorkMonth month);
[[nodiscard]] Date lastDay(WorkMonth month);
[[nodiscard]] int daysIn(WorkMonth month);
/// Every day of the month, in order.
[[nodiscard]] std::vector<Date> datesOf(WorkMonth month);
[[nodiscard]] int dayNumber(Date date);
[[nodiscard]] std::chrono::weekday weekdayOf(Date date);
[[nodiscard]] Date plusDays(Date date, int days);
/// Below zero where `last` lies before `first`.
[[nodiscard]] int daysBetween(Date first, Date last);

}  // namespace winvrx
