#pragma once

#include "foundation/employee.h"
#include "timecard/month_settings.h"
#include "timecard/punch_record.h"

#include <optional>
#include <vector>

namespace winvrx {

/// Fills the month from the schedule with "Minutos Fixos": no times before admission, on holidays
/// and on Sundays, whose situation is "FERIADO" and "DESCANSO SEMANAL"; the Saturday times on
/// Saturdays; morning and afternoon on any other day. Before admission a day has its label only.
[[nodiscard]] std::vector<PunchLine> filledMonth(const StandardSchedule& schedule,
                                                 const MonthSettings& settings,
                                                 std::optional<Date> admission);

}  // namespace winvrx
