#include "foundation/values/date.h"

#include "foundation/values/text.h"

#include <array>

namespace winvrx {

namespace {

using namespace std::string_view_literals;

constexpr std::array kMonthNames = {"janeiro"sv,  "fevereiro"sv, "março"sv,    "abril"sv,
                                    "maio"sv,     "junho"sv,     "julho"sv,    "agosto"sv,
                                    "setembro"sv, "outubro"sv,   "novembro"sv, "dezembro"sv};
constexpr std::array kWeekdayShort = {"dom"sv, "seg"sv, "ter"sv, "qua"sv,
                                      "qui"sv, "sex"sv, "sáb"sv};
constexpr std::array kWeekdayNames = {"domingo"sv,      "segunda-feira"sv, "terça-feira"sv,
                                      "quarta-feira"sv, "quinta-feira"sv,  "sexta-feira"sv,
                                      "sábado"sv};

/// The digits at [start, start + count) as a number; nullopt when one is not a digit.
std::optional<int> digitsAt(std::string_view text, std::size_t start, std::size_t count) {
    int value = 0;
    for (std::size_t i = start; i < start + count; ++i) {
        if (i >= text.size() || text[i] < '0' || text[i] > '9') return std::nullopt;
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

int monthNumber(std::chrono::month month) {
    return static_cast<int>(unsigned{month});
}

}  // namespace

std::optional<Date> parseDate(std::string_view text) {
    if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
    const auto day = digitsAt(text, 0, 2);
    const auto month = digitsAt(text, 3, 2);
    const auto year = digitsAt(text, 6, 4);
    if (!day || !month || !year || *year == 0) return std::nullopt;
    const Date date{std::chrono::year{*year}, std::chrono::month{static_cast<unsigned>(*month)},
                    std::chrono::day{static_cast<unsigned>(*day)}};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::string dateText(Date date) {
    return padded(dayNumber(date), 2) + "/" + padded(monthNumber(date.month()), 2) + "/" +
           padded(int{date.year()}, 4);
}

std::optional<TimeOfDay> parseTime(std::string_view text) {
    if (text.size() != 5 || text[2] != ':') return std::nullopt;
    const auto hours = digitsAt(text, 0, 2);
    const auto minutes = digitsAt(text, 3, 2);
    if (!hours || !minutes || *hours > 23 || *minutes > 59) return std::nullopt;
    return TimeOfDay{std::chrono::hours{*hours} + std::chrono::minutes{*minutes}};
}

std::string timeText(TimeOfDay time) {
    const auto minutes = static_cast<int>(time.sinceMidnight.count());
    return padded(minutes / 60, 2) + ":" + padded(minutes % 60, 2);
}

std::string timeText(const std::optional<TimeOfDay>& time) {
    return time ? timeText(*time) : std::string();
}

std::optional<WorkMonth> parseMonthKey(std::string_view text) {
    if (text.size() != 7 || text[2] != '-') return std::nullopt;
    const auto month = digitsAt(text, 0, 2);
    const auto year = digitsAt(text, 3, 4);
    if (!month || !year || *month < 1 || *month > 12 || *year == 0) return std::nullopt;
    return WorkMonth{std::chrono::year{*year}, std::chrono::month{static_cast<unsigned>(*month)}};
}

std::string monthKey(WorkMonth month) {
    return padded(monthNumber(month.month()), 2) + "-" + padded(int{month.year()}, 4);
}

std::string monthTitle(WorkMonth month) {
    return std::string(monthName(month.month())) + "/" + padded(int{month.year()}, 4);
}

std::string_view monthName(std::chrono::month month) {
    return kMonthNames[unsigned{month} - 1];
}

std::string_view weekdayShort(std::chrono::weekday weekday) {
    return kWeekdayShort[weekday.c_encoding()];
}

std::string_view weekdayName(std::chrono::weekday weekday) {
    return kWeekdayNames[weekday.c_encoding()];
}

std::string dayLabel(Date date) {
    return padded(dayNumber(date), 2) + "/" + std::string(weekdayShort(weekdayOf(date))) + "/" +
           std::string(firstCharacters(monthName(date.month()), 3));
}

WorkMonth monthOf(Date date) {
    return date.year() / date.month();
}

Date firstDay(WorkMonth month) {
    return month / std::chrono::day{1};
}

Date lastDay(WorkMonth month) {
    return month / std::chrono::last;
}

int daysIn(WorkMonth month) {
    return dayNumber(lastDay(month));
}

std::vector<Date> datesOf(WorkMonth month) {
    std::vector<Date> dates;
    for (int day = 0; day < daysIn(month); ++day)
        dates.push_back(plusDays(firstDay(month), day));
    return dates;
}

int dayNumber(Date date) {
    return static_cast<int>(unsigned{date.day()});
}

std::chrono::weekday weekdayOf(Date date) {
    return std::chrono::weekday{std::chrono::sys_days{date}};
}

Date plusDays(Date date, int days) {
    return std::chrono::sys_days{date} + std::chrono::days{days};
}

int daysBetween(Date first, Date last) {
    return static_cast<int>((std::chrono::sys_days{last} - std::chrono::sys_days{first}).count());
}

}  // namespace winvrx
