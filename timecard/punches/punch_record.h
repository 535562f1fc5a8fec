#pragma once

#include "foundation/register/company.h"
#include "timecard/punches/situation.h"
#include "timecard/schedule/standard_schedule.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// One day of an employee's card: a line of the punch record. Times are text as typed, five
/// characters at most, so that a card of an older program is kept as it stands.
struct PunchLine {
    std::string label;  ///< "dd/ddd/mmm"
    std::string morningEntry;
    std::string morningExit;
    std::string afternoonEntry;
    std::string afternoonExit;
    std::string extraEntry;
    std::string extraExit;
    std::string shortField;
    std::string situation;  ///< whole; the column cuts it to fifteen characters
    std::string further;    ///< bytes past the last column, kept as they stand

    [[nodiscard]] bool operator==(const PunchLine&) const = default;

    /// 1 to 31; 0 when the label does not begin with a day.
    [[nodiscard]] int day() const;
    [[nodiscard]] TimePair morning() const;
    [[nodiscard]] TimePair afternoon() const;
    [[nodiscard]] TimePair extra() const;
    /// Something stands in a time's column, be it no time.
    [[nodiscard]] bool hasTimes() const;
    void clearTimes();
};

/// One field of the record. The layout's one place; docs/record-layouts.md shows it with
/// examples.
struct PunchField {
    std::string PunchLine::*member;
    Column column;
};

inline constexpr std::array kPunchFields = {
    PunchField{&PunchLine::label, {1, 10}},
    PunchField{&PunchLine::morningEntry, {11, 5}},
    PunchField{&PunchLine::morningExit, {16, 5}},
    PunchField{&PunchLine::afternoonEntry, {21, 5}},
    PunchField{&PunchLine::afternoonExit, {26, 5}},
    PunchField{&PunchLine::extraEntry, {31, 5}},
    PunchField{&PunchLine::extraExit, {36, 5}},
    PunchField{&PunchLine::shortField, {41, 5}},
    PunchField{&PunchLine::situation, {46, kSituationWidth}},
};

inline constexpr std::size_t kPunchWidth = 60;
static_assert(isContiguous(kPunchFields, kPunchWidth));

/// Built upon `existing`, the day's line as it stands: a column that says the same keeps its bytes.
/// Throws TextFault when a text cannot be stored.
[[nodiscard]] std::string encode(const PunchLine& line, std::string_view existing = {});
[[nodiscard]] PunchLine decodePunchLine(std::string_view lineBytes);

/// "01001-03-2024.bdx": company in characters 1-2, employee in 3-5, ".bdx" in 14-17.
[[nodiscard]] std::string punchFileName(const EmployeeKey& key, WorkMonth month);

/// "01001-03-2024.prd", of the month's closing period.
[[nodiscard]] std::string closingFileName(const EmployeeKey& key, WorkMonth month);

/// One line for each day of the month with its label only.
[[nodiscard]] std::vector<PunchLine> blankMonth(WorkMonth month);

/// One line for each day of the month, in date order; days that the record lacks carry their label
/// only. Of two lines for one day the first counts.
using PunchLines = std::vector<PunchLine>;

struct PunchRecord {
    PunchLines days;
    std::vector<std::string> unread;  ///< what can be shown of the lines that stand for no day
};

/// nullopt when no punches were applied.
[[nodiscard]] std::optional<PunchRecord> findPunchRecord(const Store& store, const EmployeeKey& key,
                                                         WorkMonth month);
/// The days of the record.
[[nodiscard]] std::optional<PunchLines> loadPunches(const Store& store, const EmployeeKey& key,
                                                    WorkMonth month);

/// The line of two blanks that opens a record.
inline constexpr std::string_view kOpeningPunchLine = "  ";

/// The bytes of a record: the opening line, then the day lines.
[[nodiscard]] std::string punchRecordBytes(const std::vector<PunchLine>& lines);

/// The bytes of `record` with its day lines replaced: what means the same keeps its bytes, and
/// lines that stand for no day of the month follow as they are.
[[nodiscard]] std::string editedPunchRecord(std::string_view record, WorkMonth month,
                                            const std::vector<PunchLine>& lines);

/// The day lines among the lines of a record, one for each day of the month; a day that it lacks
/// has its label only.
[[nodiscard]] std::vector<std::string> dayLines(const std::vector<std::string>& recordLines,
                                                WorkMonth month);

}  // namespace winvrx
