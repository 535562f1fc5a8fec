#pragma once

#include "timecard/month/month_settings.h"

namespace winvrx {

struct DayPeriod {
    Date first;
    Date last;

    [[nodiscard]] bool operator==(const DayPeriod&) const = default;
};

/// The days whose punches the work month closes: the month itself with "Mês Fixo", else from the
/// day of "Iníciar todo dia:" to the day before it in the next month. It is the period whose last
/// day lies in the work month. Where a month has no such day the period ends with the month, so
/// that the periods of successive months follow each other without a gap.
[[nodiscard]] DayPeriod closingPeriod(const MonthSettings& settings);

}  // namespace winvrx
