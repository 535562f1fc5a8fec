#pragma once

#include "foundation/command.h"
#include "foundation/month_calendar.h"

namespace winvrx {

/// Answers the main window's questions about the month from the month's record.
class TimecardCalendar final : public MonthCalendar {
  public:
    explicit TimecardCalendar(const Workplace& at) : at_(at) {}
    [[nodiscard]] MonthOverview overview(Date today) const override;

  private:
    Workplace at_;
};

}  // namespace winvrx
