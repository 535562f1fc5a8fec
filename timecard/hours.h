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

/// Decimal hours, half up, with "." between thousands and "," before the decimals, of which there
/// are one or two: "1.234,50".
enum class Decimals { One = 1, Two = 2 };
[[nodiscard]] std::string decimalHours(std::chrono::seconds duration, Decimals decimals);

/// What the schedule asks of one day of its kind.
[[nodiscard]] std::chrono::seconds lengthOf(const DaySchedule& day);

/// Monday to Friday, and Saturday when its hours are normal time.
[[nodiscard]] std::chrono::seconds weeklyHours(const StandardSchedule& schedule);

/// Five times the weekly hours: 44 a week are 220 a month, the divisor of a monthly wage
/// (CLT, art. 64: thirty times the hours of one of six days).
[[nodiscard]] std::chrono::seconds monthlyHours(const StandardSchedule& schedule);

}  // namespace winvrx
