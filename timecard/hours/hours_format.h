#pragma once

#include "timecard/month/overtime_rules.h"

#include <chrono>
#include <string>

namespace winvrx {

/// "hh:mm" (minutes cut, hours with as many digits as they need) or "#,##0.00" decimal hours (half
/// up), as the month chooses. The only place where a duration is rounded.
[[nodiscard]] std::string formatted(std::chrono::seconds duration, TotalsFormat format);

/// The same with a sign where it is not shown as zero: "+00:30", "-01:15".
[[nodiscard]] std::string formattedDifference(std::chrono::seconds duration, TotalsFormat format);

/// Decimal hours, half up, with "." between thousands and "," before the decimals, of which there
/// are one or two: "1.234,50".
enum class Decimals { One = 1, Two = 2 };
[[nodiscard]] std::string decimalHours(std::chrono::seconds duration, Decimals decimals);

}  // namespace winvrx
