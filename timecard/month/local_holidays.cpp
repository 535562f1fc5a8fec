#include "timecard/month/local_holidays.h"

#include "foundation/values/input_checks.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

/// Any leap year: "dd/mm" is checked as a date of it.
constexpr std::string_view kLeapYear = "/2024";
constexpr std::size_t kShortLength = 5;
constexpr std::size_t kKeypadLength = 4;

std::string withoutYear(std::string_view fullDate) {
    return std::string(fullDate.substr(0, kShortLength));
}

}  // namespace

std::optional<HolidayDay> parseHolidayDay(std::string_view text) {
    const bool everyYear = text.size() == kShortLength;
    const auto date =
        parseDate(everyYear ? std::string(text).append(kLeapYear) : std::string(text));
    if (!date) return std::nullopt;
    return HolidayDay{date->month() / date->day(),
                      everyYear ? std::nullopt : std::optional(date->year())};
}

std::string dayText(const HolidayDay& day) {
    const auto year = day.year.value_or(std::chrono::year{2024});
    const std::string text = dateText(year / day.day);
    return day.year ? text : withoutYear(text);
}

std::string completedHolidayDay(std::string_view typed) {
    const std::string text(trimmed(typed));
    const std::string full = completedDate(text);
    if (parseDate(full)) return full;
    const bool keypad =
        text.size() == kKeypadLength && text.find_first_not_of("0123456789") == std::string::npos;
    const std::string inLeapYear =
        completedDate(text + std::string(keypad ? kLeapYear.substr(1) : kLeapYear));
    return parseDate(inLeapYear) ? withoutYear(inLeapYear) : text;
}

std::optional<Date> dateIn(WorkMonth month, const HolidayDay& day) {
    const Date date = month.year() / day.day;
    const bool otherYear = day.year && *day.year != month.year();
    if (!date.ok() || otherYear || monthOf(date) != month) return std::nullopt;
    return date;
}

std::string encode(const LocalHoliday& holiday, std::string existing) {
    RecordLine line(std::move(existing), kLocalHolidayWidth);
    line.put(kHolidayDayColumn, dayText(holiday.day));
    line.put(kHolidayNameColumn, holiday.name);
    return line.bytes();
}

LocalHolidayLine decodeLocalHoliday(std::string lineBytes) {
    LocalHolidayLine line{std::move(lineBytes), std::nullopt};
    if (const auto day = parseHolidayDay(fieldOf(line.bytes, kHolidayDayColumn)))
        line.holiday = LocalHoliday{*day, fieldOf(line.bytes, kHolidayNameColumn)};
    return line;
}

std::vector<LocalHolidayLine> loadLocalHolidays(const Store& store) {
    std::vector<LocalHolidayLine> lines;
    for (std::string& bytes : RecordFile(store, kLocalHolidaysName).lines())
        lines.push_back(decodeLocalHoliday(std::move(bytes)));
    return lines;
}

void saveLocalHolidays(const Store& store, const std::vector<LocalHolidayLine>& lines) {
    std::vector<std::string> bytes;
    bytes.reserve(lines.size());
    for (const LocalHolidayLine& line : lines)
        bytes.push_back(line.bytes);
    RecordFile(store, kLocalHolidaysName).rewrite(bytes);
}

}  // namespace winvrx
