#pragma once

#include "timecard/month_settings.h"
#include "timecard/punch_record.h"

#include <chrono>
#include <string>

namespace winvrx {

/// The length of a pair; over midnight when the exit is earlier than the entry. A pair with a
/// blank, or whose entry equals its exit, counts nothing.
[[nodiscard]] std::chrono::seconds lengthOf(const TimePair& pair);

/// All that was worked on the line's day.
[[nodiscard]] std::chrono::seconds workedOn(const PunchLine& line);

/// "hh:mm" (minutes cut) or "#,##0.00" decimal hours (half up), as the month chooses.
[[nodiscard]] std::string formatted(std::chrono::seconds duration, TotalsFormat format);

}  // namespace winvrx
