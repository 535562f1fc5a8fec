#pragma once

#include "foundation/desk/command.h"
#include "foundation/menu/month_calendar.h"
#include "timecard/month/month_settings.h"

namespace winvrx {

/// Answers the main window's questions about the month from the month's record, or from what the
/// month is offered as holidays where it has none.
class TimecardCalendar final : public MonthCalendar {
  public:
    explicit TimecardCalendar(const Workplace& at) : at_(at) {}
    [[nodiscard]] MonthOverview overview(Date today) const override;
    [[nodiscard]] bool confirmOffered() const override;

  private:
    /// The month confirmed last, as long as it has its record.
    [[nodiscard]] std::optional<WorkMonth> lastMonth() const;
    /// A month as it is on record, or as it is offered.
    struct Seen {
        MonthSettings settings;
        bool isRecorded = false;
    };
    [[nodiscard]] Seen seen(WorkMonth month) const;

    Workplace at_;
};

}  // namespace winvrx
