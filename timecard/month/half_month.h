#pragma once

#include "foundation/values/date.h"

#include <string_view>

namespace winvrx {

/// "1º Quinzena" is days 1 to 15, "2º Quinzena" day 16 to the end.
enum class HalfMonth { First, Second };
inline constexpr int kLastOfFirstHalf = 15;

[[nodiscard]] constexpr std::string_view nameOf(HalfMonth half) {
    return half == HalfMonth::First ? "1º Quinzena" : "2º Quinzena";
}

struct DayRange {
    int first = 1;
    int last = kLastOfFirstHalf;
};

[[nodiscard]] inline DayRange daysOf(HalfMonth half, WorkMonth month) {
    if (half == HalfMonth::First) return {};
    return {kLastOfFirstHalf + 1, daysIn(month)};
}
[[nodiscard]] inline HalfMonth halfOf(Date date) {
    return dayNumber(date) <= kLastOfFirstHalf ? HalfMonth::First : HalfMonth::Second;
}

}  // namespace winvrx
