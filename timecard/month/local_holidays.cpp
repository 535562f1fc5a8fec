#include "timecard/month/local_holidays.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

/// Any leap year: "dd/mm" is checked as a date of it.
constexpr std::string_view kLeapYear = "/2024";
constexpr std::size_t kShortLength = 5;
constexpr std::size_t kKeypadLength = 4;

}  // namespace

std::optional<HolidayDay> parseHolidayDay(std::string_view text) {
    const bool everyYear = text.size() == kShortLength;
    const auto date =
        parseDate(everyYear ? std::string(text).append(kLeapYear) : std::string(text));
    if (!date) return std::nullopt;
    return HolidayDay{date->month() / date->day(),
                      everyYear ? std::nullopt : std::optional(date->year())};
}

std::string completedHolidayDay(std::string_view typed) {
    const std::string text(trimmed(typed));
    const std::string full = completedDate(text);
    if (parseDate(full)) return full;
    const bool keypad = text.size() == kKeypadLength && isDigits(text);
    const std::string inLeapYear =
        completedDate(text + std::string(keypad ? kLeapYear.substr(1) : kLeapYear));
    return parseDate(inLeapYear) ? inLeapYear.substr(0, kShortLength) : text;
}

Hint holidayDayHint(std::string_view text, Entry entry) {
    if (entry == Entry::Typing || parseHolidayDay(completedHolidayDay(text))) return {};
    return {Hint::Tone::Warning, "Digite o dia como dd/mm (todo ano) ou dd/mm/aaaa (uma vez)."};
}

std::optional<Date> dateIn(WorkMonth month, const HolidayDay& day) {
    const Date date = month.year() / day.day;
    const bool otherYear = day.year && *day.year != month.year();
    if (!date.ok() || otherYear || monthOf(date) != month) return std::nullopt;
    return date;
}

}  // namespace winvrx
