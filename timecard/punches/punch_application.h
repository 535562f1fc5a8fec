#pragma once

#include "foundation/register/leave_calendar.h"
#include "timecard/month/month_settings.h"
#include "timecard/punches/punch_record.h"
#include "timecard/punches/rotation_calendar.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// The month of a member of a rotation group.
struct RotationTerms {
    RotationMonth month;
    std::optional<std::chrono::weekday> restDay = {};  ///< where his record names one
};

/// What an employee's month is filled from.
struct Application {
    StandardSchedule schedule;
    LeaveCalendar leaves = {};                           ///< with the admission
    std::chrono::weekday restDay = std::chrono::Sunday;  ///< the employee's own weekly rest
    /// Of the days of work for which the schedule has no times.
    std::string situation = {};
    std::optional<RotationTerms> rotation = {};
    /// Moves the times of a day ("Minutos Variados"); none leaves them as they stand.
    std::function<DaySchedule(const DaySchedule& day, Date date)> spread = {};
};

/// Fills the month from the schedule. The first that fits decides: before the admission and after
/// the end of the contract a day has its label only; in a leave the situation "AFASTAMENTO"; on a
/// ticked holiday "FERIADO" and on a Sunday and the own rest day "DESCANSO SEMANAL"; a Saturday the
/// Saturday times; any other day morning and afternoon.
///
/// In a rotation calendar and schedule do not count: a working day has its times, on a ticked
/// holiday with "FERIADO" beside them; a day off is "DESCANSO SEMANAL", or "FOLGA" where the record
/// names another day of the week for the rest.
[[nodiscard]] std::vector<PunchLine> filledMonth(const Application& application,
                                                 const MonthSettings& settings);

/// Whether days of work would get no times: the schedule has none for Monday to Friday.
[[nodiscard]] bool leavesWorkBlank(const StandardSchedule& schedule);

}  // namespace winvrx
