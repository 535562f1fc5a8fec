#pragma once

#include "timecard/month/month_settings.h"

#include <string>
#include <vector>

namespace winvrx {

/// A Sunday or a ticked holiday (Lei 605/1949, art. 1º); every other day is a business day,
/// Saturdays included.
[[nodiscard]] bool isRestDay(const MonthSettings& settings, Date date);

struct MonthDayCounts {
    int businessDays = 0;
    int restDays = 0;
};
[[nodiscard]] MonthDayCounts countDays(const MonthSettings& settings);

/// The lines that the main window shows for `today`, a day of the present month: the line for
/// today, then the next three business days, those of the next month included.
[[nodiscard]] std::vector<std::string> businessDayNotices(const MonthSettings& present,
                                                          const MonthSettings& next, Date today);

}  // namespace winvrx
