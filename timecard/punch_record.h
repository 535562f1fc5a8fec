#pragma once

#include "timecard/standard_schedule.h"

#include <string>
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
    std::string situation;  ///< fifteen characters
    std::string further;    ///< bytes past the last column, kept as they stand

    [[nodiscard]] bool operator==(const PunchLine&) const = default;

    /// 1 to 31; 0 when the label does not begin with a day.
    [[nodiscard]] int day() const;
    [[nodiscard]] TimePair morning() const;
    [[nodiscard]] TimePair afternoon() const;
    [[nodiscard]] TimePair extra() const;
};

/// What the situation column says of a day; the texts that are longer than the column are
/// understood as stored.
inline constexpr std::string_view kSituationHoliday = "FERIADO";
inline constexpr std::string_view kSituationWeeklyRest = "DESCANSO SEMANAL";
inline constexpr std::string_view kSituationLeave = "AFASTAMENTO";

[[nodiscard]] std::string encode(const PunchLine& line);
[[nodiscard]] PunchLine decodePunchLine(std::string_view lineBytes);

/// "01001-03-2024.bdx": company in characters 1-2, employee in 3-5, ".bdx" in 14-17.
[[nodiscard]] std::string punchFileName(const CompanyCode& company, const EmployeeCode& employee,
                                        WorkMonth month);

/// One line for each day of the month, in date order; days that the record lacks carry their label
/// only. nullopt when no punches were applied.
[[nodiscard]] std::optional<std::vector<PunchLine>> loadPunches(FileSystem& files,
                                                                const DataFolder& folder,
                                                                const CompanyCode& company,
                                                                const EmployeeCode& employee,
                                                                WorkMonth month);

/// The bytes of a record: the opening line of two blanks, then the day lines.
[[nodiscard]] std::string punchRecordBytes(const std::vector<PunchLine>& lines);

void savePunches(FileSystem& files, const DataFolder& folder, const CompanyCode& company,
                 const EmployeeCode& employee, WorkMonth month,
                 const std::vector<PunchLine>& lines);

}  // namespace winvrx
