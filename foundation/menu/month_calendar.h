#pragma once

#include "foundation/values/date.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// What the main window shows of a month.
struct MonthOverview {
    WorkMonth month{};
    std::vector<Date> holidays;
    std::optional<WorkMonth> inWork;   ///< chosen, and on record
    std::optional<WorkMonth> offered;  ///< none is chosen, and this one was confirmed last
    bool recorded = false;             ///< false: holidays and counts are only suggested
    int businessDays = 0;
    int restDays = 0;
    std::vector<std::string> notices;  ///< business-day notices for today
};

/// Answered by the time-card engine for the main window, which lies below it.
class MonthCalendar {
  public:
    virtual ~MonthCalendar() = default;

    /// The chosen work month, or today's month when none is chosen. Notices speak of today; they
    /// say so when the holidays that they go by are only suggested.
    [[nodiscard]] virtual MonthOverview overview(Date today) const = 0;
    /// Makes the month offered the work month. False when that failed, which the operator is told.
    [[nodiscard]] virtual bool confirmOffered() const = 0;
};

}  // namespace winvrx
