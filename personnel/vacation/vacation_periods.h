#pragma once

#include "foundation/register/leave_calendar.h"
#include "personnel/pay/vacation_rules.h"
#include "personnel/vacation/vacation_record.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What is left of an employee's vacations, and what became of the others.

namespace winvrx {

enum class PeriodStatus { Pending, ToSettle, Settled, Provision, Forfeit };

/// "30Dias  - Pendente", "30Dias  -  Quitar ", "30Dias  -  Quitada"; "30Dias  -  Provisão",
/// "0Dias  -  Perdidas".
[[nodiscard]] std::string statusText(int days, PeriodStatus status);

/// A vacation or a provision on record, or the days of an acquisition period of which nothing is.
struct PeriodRow {
    AcquisitionPeriod period;
    int granted = 30;
    int days = 0;  ///< taken and sold, or left
    PeriodStatus status = PeriodStatus::Pending;
    std::optional<std::size_t> line = {};  ///< of what is on record, its place in the file

    [[nodiscard]] std::string text() const { return statusText(days, status); }
    /// Whether the year that gives the vacation is over on `date`.
    [[nodiscard]] bool isAcquiredOn(Date date) const { return period.last < date; }
};

/// The days that a period gives; asked only of periods that no vacation is recorded of.
using GrantedDays = std::function<int(const AcquisitionPeriod& period)>;

/// What the periods are counted from by leaves and vacations on record. A leave that goes on where
/// another of its type ends is one with it.
[[nodiscard]] AcquisitionCount acquisitionCount(Date admission, const LeaveCalendar& leaves,
                                                const VacationLines& lines);

/// The periods that have begun by `date`, the oldest first, each with its vacations and then what
/// is left of it. Vacations of other periods, as before another admission, stand in no row.
[[nodiscard]] std::vector<PeriodRow> periodRows(const AcquisitionCount& of, Date date,
                                                const VacationLines& lines,
                                                const GrantedDays& granted);

/// Days of the period that are recorded: taken and sold.
[[nodiscard]] int daysRecorded(const VacationLines& lines, const AcquisitionPeriod& period);

/// The period of a recorded vacation, which has a key; of an earlier contract's as its first day
/// has it.
[[nodiscard]] AcquisitionPeriod periodOf(std::optional<Date> admission, const VacationItem& item);

/// How many rows have days left of a period whose limit lies before `date`.
[[nodiscard]] int overdue(const std::vector<PeriodRow>& rows, Date date);

/// A vacation that must begin soon, or part of it will be paid double.
struct DueVacation {
    AcquisitionPeriod period;
    int days = 0;
    Date lastStart{};
};
inline constexpr int kDueWithinDays = 60;
/// Of the period whose last start lies within sixty days, or has passed while its limit has not;
/// nullopt where no days of it are left. At most one period is due at a time.
[[nodiscard]] std::optional<DueVacation> dueVacation(const AcquisitionCount& of, Date today,
                                                     const VacationLines& lines);

}  // namespace winvrx
