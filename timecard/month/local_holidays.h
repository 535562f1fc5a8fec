#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "foundation/values/date.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
[[nodiscard]] std::string dayText(const HolidayDay& day);

/// A day typed on the keypad in its full form: "2501", "25/1" and "25-01-2024" become "25/01" and
/// "25/01/2024". What is no such day comes back as it is.
[[nodiscard]] std::string completedHolidayDay(std::string_view typed);

/// nullopt where the month has no such day.
[[nodiscard]] std::optional<Date> dateIn(WorkMonth month, const HolidayDay& day);

struct LocalHoliday {
    HolidayDay day;
    std::string name;

    [[nodiscard]] bool operator==(const LocalHoliday&) const = default;
};

/// The layout of a line. The one place that knows it.
inline constexpr Column kHolidayDayColumn{1, 10};
inline constexpr Column kHolidayNameColumn{12, 40};
inline constexpr std::size_t kLocalHolidayWidth = 51;
static_assert(kHolidayNameColumn.start == kHolidayDayColumn.end() + 1);
static_assert(kHolidayNameColumn.end() == kLocalHolidayWidth + 1);

/// A line whose day is none is kept as it stands: it can be shown, but not changed.
struct LocalHolidayLine {
    std::string bytes;
    std::optional<LocalHoliday> holiday;
};

/// Built upon `existing`: a column that means the same there keeps its bytes. Throws TextFault when
/// the name cannot be stored.
[[nodiscard]] std::string encode(const LocalHoliday& holiday, std::string existing = {});
[[nodiscard]] LocalHolidayLine decodeLocalHoliday(std::string lineBytes);

inline constexpr std::string_view kLocalHolidaysName = "Feriados";

/// In file order; empty when there is no list. Throws FileFault.
[[nodiscard]] std::vector<LocalHolidayLine> loadLocalHolidays(const Store& store);
void saveLocalHolidays(const Store& store, const std::vector<LocalHolidayLine>& lines);

}  // namespace winvrx
