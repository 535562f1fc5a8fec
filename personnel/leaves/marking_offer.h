#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_queries.h"
#include "foundation/register/leave_calendar.h"

#include <string>
#include <vector>

namespace winvrx {

/// Asks whether the days of cards that stand otherwise than the leaves have them are to be marked
/// now, and marks them. What fails is told.
void offerMarking(const Workplace& at, const PayrollLock& payroll, const EmployeeKey& key,
                  const LeaveCalendar& calendar, LeavePeriod days);

/// "20/03/2024, 21/03/2024 e mais 3".
[[nodiscard]] std::string datesText(const std::vector<Date>& dates);

}  // namespace winvrx
