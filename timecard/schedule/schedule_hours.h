#pragma once

#include "timecard/schedule/standard_schedule.h"

#include <chrono>

namespace winvrx {

/// The length of a pair; over midnight when the exit is earlier than the entry. A pair with a
/// blank, or whose entry equals its exit, counts nothing.
[[nodiscard]] std::chrono::seconds lengthOf(const TimePair& pair);

/// What the schedule asks of one day of its kind.
[[nodiscard]] std::chrono::seconds lengthOf(const DaySchedule& day);

/// Monday to Friday, and Saturday when its hours are normal time.
[[nodiscard]] std::chrono::seconds weeklyHours(const StandardSchedule& schedule);

/// Five times the weekly hours: 44 a week are 220 a month, the divisor of a monthly wage
/// (CLT, art. 64: thirty times the hours of one of six days).
[[nodiscard]] std::chrono::seconds monthlyHours(const StandardSchedule& schedule);

}  // namespace winvrx
