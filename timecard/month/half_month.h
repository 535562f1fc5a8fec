#pragma once

#include "foundation/values/date.h"

namespace winvrx {

/// "1º Quinzena" is days 1 to 15, "2º Quinzena" day 16 to the end.
enum class HalfMonth { First, Second };

struct DayRange {
    int first = 1;
    int last = 15;
};

[[nodiscard]] DayRange daysOf(HalfMonth half, WorkMonth month);
[[nodiscard]] HalfMonth halfOf(Date date);

}  // namespace winvrx
