#pragma once

#include "foundation/values/date.h"

#include <string>
#include <vector>

namespace winvrx {

enum class HolidayKind {
    National,  ///< by federal law
    Optional,  ///< kept by custom: Carnival, Corpus Christi
    Local      ///< of the town or the state, from the user's own list
};

struct Holiday {
    Date date{};
    std::string name;
    HolidayKind kind = HolidayKind::National;

    [[nodiscard]] bool operator==(const Holiday&) const = default;
};

/// Easter Sunday by the Gregorian rule: the Sunday after the first church full moon from 21 March
/// on.
[[nodiscard]] Date easterSunday(std::chrono::year year);

/// The national holidays of a month and the days kept by custom, in the order of their dates.
/// Lei 662/1949 with Lei 10.607/2002 (1/1, 21/4, 1/5, 7/9, 2/11, 15/11, 25/12), Lei 6.802/1980
/// (12/10), Lei 14.759/2023 (20/11) and Lei 9.093/1995, art. 2º (Good Friday).
[[nodiscard]] std::vector<Holiday> calendarHolidays(WorkMonth month);

}  // namespace winvrx
