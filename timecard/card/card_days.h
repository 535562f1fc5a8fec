#pragma once

#include "timecard/card/card_sheet.h"
#include "timecard/hours/hours_summary.h"

#include <string>

namespace winvrx {

/// What a day is by the contract, the calendar and its situation.
enum class DayKind { Work, Holiday, WeeklyRest, Leave, Absence, Excused, OutsideContract };

/// The days of the card on the screen: what contract, calendar and leaves make of each, and its
/// hours. `sheet` outlives this object; days count from 1.
class CardDays {
  public:
    /// Without `punched` there is nothing to count.
    CardDays(const CardSheet& sheet, WorkMonth month, WorkTerms terms, bool punched)
        : sheet_(sheet), month_(month), terms_(std::move(terms)), punched_(punched) {}

    [[nodiscard]] DayKind kindOf(int day) const;
    /// Which leave the day is in, or why it lies outside the contract; empty for any other day.
    [[nodiscard]] std::string standingText(int day) const;
    /// "FÉRIAS", of a day marked as one of a leave that is on record.
    [[nodiscard]] std::string leaveWord(int day) const;
    /// Why the times of the day are doubtful, or do not go with the leaves; they can be recorded
    /// all the same.
    [[nodiscard]] std::string doubtAt(int day) const;
    /// What was worked on the day, in the month's format; empty for a day without worked time.
    [[nodiscard]] std::string totalOf(int day) const;
    /// What the day has beyond or, with "-", short of its schedule; empty when nothing.
    [[nodiscard]] std::string differenceOf(int day) const;
    [[nodiscard]] std::string totalOf(HalfMonth half) const;
    /// All zero while the card has no punches.
    [[nodiscard]] HoursSummary hours() const;

  private:
    [[nodiscard]] Date dateOf(int day) const { return plusDays(firstDay(month_), day - 1); }
    [[nodiscard]] HourTotals hoursOf(int day) const;

    const CardSheet& sheet_;
    WorkMonth month_;
    WorkTerms terms_;
    bool punched_;
};

}  // namespace winvrx
