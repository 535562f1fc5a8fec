#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "foundation/values/date.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/overtime_rules.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The overtime percentages of one employee: the record company code + "MedHorExtr" + employee code,
// one line a work month. A month without a line of its own goes by the month's settings.

namespace winvrx {

/// The layout of a line: the month, then the percentages in the order of kPercents, single blanks
/// between them. The one place that knows it.
inline constexpr Column kOvertimeMonth{1, 7};
inline constexpr std::array<Column, kPercents.size()> kOvertimeColumns = {
    {{9, 3}, {13, 3}, {17, 3}, {21, 3}}};
inline constexpr std::size_t kOvertimeWidth = 23;
static_assert([] {
    std::size_t next = kOvertimeMonth.end();
    for (const Column column : kOvertimeColumns) {
        if (column.start != next + 1) return false;
        next = column.end();
    }
    return next == kOvertimeWidth + 1;
}());

struct OvertimeLine {
    WorkMonth month;
    OvertimePercents percents;

    [[nodiscard]] bool operator==(const OvertimeLine&) const = default;
};

/// nullopt when the line has no month, or a number that is none of its range.
[[nodiscard]] std::optional<OvertimeLine> decodeOvertime(std::string_view lineBytes);
/// Built upon `existing`: a column that means the same there keeps its bytes.
[[nodiscard]] std::string encode(const OvertimeLine& line, std::string existing = {});

/// "MedHorExtr001", to be put behind the company code.
[[nodiscard]] std::string overtimeFileName(const EmployeeCode& employee);

/// The employee's own percentages of the month: the first line that is understood and has the
/// month; nullopt where there is none. Throws FileFault.
[[nodiscard]] std::optional<OvertimePercents> loadOvertime(const Store& store,
                                                           const EmployeeKey& key, WorkMonth month);

/// The rules that hold for the employee in the month: the month's, with his own percentages where
/// he has them.
[[nodiscard]] OvertimeRules overtimeOf(const Store& store, const EmployeeKey& key,
                                       const MonthSettings& month);

/// The employee's file with the line put into it; every other line stays as it is. nullopt when the
/// file says so already.
[[nodiscard]] std::optional<FileSystem::NewContent> withOvertime(const Store& store,
                                                                 const EmployeeKey& key,
                                                                 const OvertimeLine& line);
void saveOvertime(const Store& store, const EmployeeKey& key, const OvertimeLine& line);

}  // namespace winvrx
