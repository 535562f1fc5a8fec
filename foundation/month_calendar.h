#pragma once

#include "foundation/date.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// What the main window shows of a month.
struct MonthOverview {
    WorkMonth month{};
    std::vector<Date> holidays;
    bool recorded = false;  ///< the month's settings exist
    int businessDays = 0;
    int restDays = 0;
    std::vector<std::string> notices;  ///< business-day notices for today
};

/// Answered by the time-card engine for the main window, which lies below it.
class MonthCalendar {
  public:
    virtual ~MonthCalendar() = default;

    /// The chosen work month, or today's month when none is chosen. Notices speak of today and are
    /// empty while the settings of today's month do not exist.
    [[nodiscard]] virtual MonthOverview overview(Date today) const = 0;
};

}  // namespace winvrx
