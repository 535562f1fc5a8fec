#pragma once

#include "output/mirrors/mirror_period.h"

#include <functional>
#include <string>
#include <vector>

// The columns of hours in text reports and spreadsheets, titled with the rates that hold.

namespace winvrx {

struct HourColumn {
    std::string title;
    std::size_t width;  ///< characters in a text report, at which a title is as long
    std::function<std::chrono::seconds(const HourTotals&)> of;
};

/// Of a day: normal by day, normal by night, extra, extra by night, and what is missing. Each hour
/// worked stands in one of the first four.
[[nodiscard]] std::vector<HourColumn> dayColumns(const OvertimeRules& rules);

/// Of a period: standard hours, extra by rate, night, missing, normal.
[[nodiscard]] std::vector<HourColumn> summaryColumns(const OvertimeRules& rules);

/// "08:00 12:00 13:00 17:00": what was punched, or why nothing was.
[[nodiscard]] std::string workedTimes(const MirrorDay& day);

}  // namespace winvrx
