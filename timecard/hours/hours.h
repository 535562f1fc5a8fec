#pragma once

#include "foundation/register/employee.h"
#include "foundation/register/leave_calendar.h"
#include "timecard/hours/hours_format.h"
#include "timecard/month/half_month.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/overtime_rules.h"
#include "timecard/punches/punch_record.h"
#include "timecard/schedule/schedule_hours.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

// The one calculation of hours: screen, card, mirror, reports and payroll all ask here. Durations
// are exact seconds; rounding is hours_format's, and only for showing. docs/hours.md tells the
// rules with an example each.
//
//     const WorkTerms terms = workTerms(settings, overtime, schedule, employee, leaves);
//     const HourTotals month = periodHours(lines, firstDay(settings.month), terms);
//     formatted(month[HourCategory::Missing], overtime.totalsFormat)     "01:30"

namespace winvrx {

/// In the order of "Resumo das Horas".
enum class HourCategory {
    Standard,
    NormalDay,
    NormalNight,
    ExtraMinimum,
    ExtraMaximum,
    NightExtraMinimum,
    NightExtraMaximum,
    Missing,
    WeeklyRest
};

inline constexpr std::array kHourCategories = {
    HourCategory::Standard,          HourCategory::NormalDay,    HourCategory::NormalNight,
    HourCategory::ExtraMinimum,      HourCategory::ExtraMaximum, HourCategory::NightExtraMinimum,
    HourCategory::NightExtraMaximum, HourCategory::Missing,      HourCategory::WeeklyRest};

/// A duration for each category, of one day or of many.
class HourTotals {
  public:
    [[nodiscard]] std::chrono::seconds operator[](HourCategory category) const {
        return durations_[static_cast<std::size_t>(category)];
    }
    [[nodiscard]] std::chrono::seconds& operator[](HourCategory category) {
        return durations_[static_cast<std::size_t>(category)];
    }
    HourTotals& operator+=(const HourTotals& other);

    [[nodiscard]] std::chrono::seconds normal() const;
    /// "Hora NotExtr": night extra hours as one figure.
    [[nodiscard]] std::chrono::seconds nightExtra() const;
    [[nodiscard]] std::chrono::seconds extra() const;  ///< of day and night
    [[nodiscard]] std::chrono::seconds worked() const { return normal() + extra(); }

    [[nodiscard]] bool operator==(const HourTotals&) const = default;

  private:
    std::array<std::chrono::seconds, kHourCategories.size()> durations_{};
};

/// What an employee's hours depend on besides the punches.
struct WorkTerms {
    DaySchedule weekday;
    DaySchedule saturday;
    bool saturdayIsNormal = false;
    std::chrono::weekday restDay = std::chrono::Sunday;  ///< `restByCalendar` of the employee
    LeaveCalendar leaves;  ///< days outside the contract count nothing
    std::vector<Date> holidays;
    OvertimeRules overtime;

    [[nodiscard]] bool isHoliday(Date date) const;
};

/// `leaves` have the admission; `overtime` is what holds for the employee: his own figures or the
/// month's.
[[nodiscard]] WorkTerms workTerms(const MonthSettings& settings, const OvertimeRules& overtime,
                                  const StandardSchedule& schedule, const Employee& employee,
                                  LeaveCalendar leaves);

/// What the line's mark makes of a day or, where it says nothing, the leave on record: a day
/// without times is one of the leave, and of a day worked all the same nothing is missing.
[[nodiscard]] DayMeaning meaningOn(const PunchLine& line, Date date, const WorkTerms& terms);

/// The hours of one day. What was worked past midnight belongs to the line that it stands on.
[[nodiscard]] HourTotals dayHours(const PunchLine& line, Date date, const WorkTerms& terms);

/// The times that the day is asked for; blank on a day of rest, away or outside the contract.
[[nodiscard]] DaySchedule contractedTimes(const PunchLine& line, Date date, const WorkTerms& terms);

/// The rule by which some minutes came to their category.
enum class HourRule {
    Schedule,         ///< asked for by the schedule
    WithinSchedule,   ///< worked, up to the day's standard hours
    Tolerated,        ///< worked, with variations within the tolerance
    WorkingDay,       ///< extra on a working day
    UpToThreshold,    ///< extra, up to the daily threshold
    AboveThreshold,   ///< extra, above it
    RestDay,          ///< extra on a Sunday, a holiday or a day marked as rest
    OwnRestDay,       ///< extra on the employee's own weekly rest day
    SingleLevel,      ///< extra, paid at one percentage only
    MarkedMissing,    ///< the day is marked as an absence
    ShortOfSchedule,  ///< worked less than the schedule asks for, beyond the tolerance
    PaidRest          ///< a Sunday or a ticked holiday (Lei 605/1949, art. 1º)
};

/// From when to when by the clock; `to` may lie on the day after.
struct ClockSpan {
    TimeOfDay from;
    TimeOfDay to;

    [[nodiscard]] bool operator==(const ClockSpan&) const = default;
};

/// One piece of a day's figure.
struct HourPart {
    HourCategory category;
    HourRule rule;
    std::chrono::seconds length;
    std::optional<ClockSpan> span;  ///< nullopt for what was not worked

    [[nodiscard]] bool operator==(const HourPart&) const = default;
};

/// What dayHours adds up, in the order in which it is worked.
[[nodiscard]] std::vector<HourPart> dayParts(const PunchLine& line, Date date,
                                             const WorkTerms& terms);

/// The sums over lines of one day each, the first of `first`, in date order; over those of one half
/// of a month where `half` says so.
[[nodiscard]] HourTotals periodHours(std::span<const PunchLine> lines, Date first,
                                     const WorkTerms& terms,
                                     std::optional<HalfMonth> half = std::nullopt);

}  // namespace winvrx
