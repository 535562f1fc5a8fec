#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "foundation/values/date.h"
#include "timecard/month/overtime_rules.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::size_t kHolidayCells = 42;

/// The settings of one work month: the record "mm-yyyyds.rdx", one value a line.
struct MonthSettings {
    WorkMonth month{};

    /// The calendar of six weeks of seven days that starts on a Sunday; cell 0 is the Sunday of the
    /// week that holds day 1. Ticked cells outside the month mean nothing.
    std::array<bool, kHolidayCells> holidayCells{};

    bool recordTicks = true;  ///< the check box "Gravação"
    OvertimeRules overtime;
    int closingDay = 1;      ///< "Iníciar todo dia:"
    bool fixedMonth = true;  ///< "Mês Fixo"

    [[nodiscard]] bool isHoliday(Date date) const;
    void setHoliday(Date date, bool holiday);
    [[nodiscard]] std::vector<Date> holidays() const;

    [[nodiscard]] bool operator==(const MonthSettings&) const = default;
};

/// The lines of the record behind the holiday cells, counted from 1.
enum class MonthLine : std::size_t {
    MinimumPercent = kHolidayCells + 1,
    NightMinimumPercent,
    MaximumPercent,
    NightMaximumPercent,
    RecordTicks,
    DifferentiatedPercent,
    Mode,
    TotalsFormat,
    Threshold,
    ClosingDay,
    FixedMonth
};

/// The value of a line as the record has it.
[[nodiscard]] std::string textOf(const MonthSettings& settings, MonthLine line);
/// Takes a value as the record or the operator has it; false, and nothing taken, when it is none of
/// the line's.
[[nodiscard]] bool take(MonthSettings& settings, MonthLine line, std::string_view text);

/// The cell of a date in the grid of its own month, 0 to 41.
[[nodiscard]] std::size_t holidayCellOf(Date date);

/// "03-2024ds.rdx".
[[nodiscard]] std::string monthRecordName(WorkMonth month);

inline constexpr int kHighestClosingDay = 31;

/// The latest month with a record before `month`; nullopt where there is none.
[[nodiscard]] std::optional<WorkMonth> lastRecordedBefore(const Store& store, WorkMonth month);

/// A line of the record that holds no number of its range, or stands behind the known ones. It is
/// kept as it stands.
struct UnreadLine {
    std::size_t number;  ///< counted from 1
    std::string text;    ///< what can be shown of it

    [[nodiscard]] bool operator==(const UnreadLine&) const = default;
};

struct MonthRecord {
    MonthSettings settings;
    std::vector<UnreadLine> unread;
};

/// The month's record; nullopt where there is none. A line that is not a number of its range counts
/// as the default.
[[nodiscard]] std::optional<MonthRecord> findMonthRecord(const Store& store, WorkMonth month);
/// The settings of the record; the defaults where there is none.
[[nodiscard]] MonthSettings loadMonthSettings(const Store& store, WorkMonth month);

/// A line whose meaning does not change keeps its bytes, those that are not understood and those
/// past the known ones included. Gives the record as it stands then.
MonthRecord saveMonthSettings(const Store& store, const MonthSettings& settings);

}  // namespace winvrx
