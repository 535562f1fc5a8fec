#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/line_file.h"
#include "foundation/values/date.h"
#include "foundation/values/input_checks.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The holidays of the town and the state, a list that the user keeps: the record `Feriados` in the
// data folder, for all companies as the work months are, one line a holiday.

namespace winvrx {

/// A day of every year, or of one.
struct HolidayDay {
    std::chrono::month_day day{};
    std::optional<std::chrono::year> year;

    [[nodiscard]] bool operator==(const HolidayDay&) const = default;
};

/// "dd/mm" or "dd/mm/yyyy"; nullopt for anything else, impossible days included. 29/02 is a day.
[[nodiscard]] std::optional<HolidayDay> parseHolidayDay(std::string_view text);

/// A day typed on the keypad in its full form: "2501", "25/1" and "25-01-2024" become "25/01" and
/// "25/01/2024". What is no such day comes back as it is.
[[nodiscard]] std::string completedHolidayDay(std::string_view typed);

/// Says how a day is typed, of a text that is none.
[[nodiscard]] Hint holidayDayHint(std::string_view text, Entry entry);

inline constexpr FieldKind kHolidayDayField{holidayDayHint, completedHolidayDay};

/// nullopt where the month has no such day.
[[nodiscard]] std::optional<Date> dateIn(WorkMonth month, const HolidayDay& day);

/// A line of the list. A line whose day is none is kept as it stands.
struct LocalHoliday {
    std::string day;  ///< "25/01" for every year, "25/01/2024" for one
    std::string name;

    [[nodiscard]] bool operator==(const LocalHoliday&) const = default;
};

[[nodiscard]] inline std::optional<HolidayDay> keyOf(const LocalHoliday& holiday) {
    return parseHolidayDay(holiday.day);
}

/// The layout of a line. The one place that knows it.
inline constexpr std::array kLocalHolidayFields = {
    RecordField<LocalHoliday>{&LocalHoliday::day, {1, 10}, "Dia", true},
    RecordField<LocalHoliday>{&LocalHoliday::name, {12, 40}, "Nome", true},
};
inline constexpr std::size_t kLocalHolidayWidth = 51;

template <>
struct RecordLayout<LocalHoliday> : LineLayout<kLocalHolidayFields, kLocalHolidayWidth> {};

using LocalHolidayLine = StoredLine<LocalHoliday>;

inline constexpr std::string_view kLocalHolidaysName = "Feriados";

/// The list: one for all companies.
[[nodiscard]] inline LineFile<LocalHoliday> localHolidays(const Store& store) {
    return LineFile<LocalHoliday>({store, kLocalHolidaysName});
}

}  // namespace winvrx
