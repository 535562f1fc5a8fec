#pragma once

#include "foundation/register/employee_queries.h"
#include "foundation/register/leave_calendar.h"

#include <vector>

// Cards on record that a leave or the end of a contract came too late for.

namespace winvrx {

/// A day of a card that stands otherwise than the leaves have it: a day away that is not marked
/// "AFASTAMENTO" without times, or one after the contract's end that is not blank.
struct UnmarkedDay {
    Date date;
    bool hasTimes = false;  ///< marking it loses them
    bool onLeave = false;   ///< marked so far: nothing but the mark goes
    bool closed = false;    ///< the month's payroll is generated: it cannot be marked

    [[nodiscard]] bool operator==(const UnmarkedDay&) const = default;
};

/// Those within `days`, in date order; months without a punch record have none. `leaves` may be one
/// that is not on disk yet. Throws FileFault.
[[nodiscard]] std::vector<UnmarkedDay> unmarkedDays(const Store& store, const PayrollLock& payroll,
                                                    const EmployeeKey& key,
                                                    const LeaveCalendar& leaves, LeavePeriod days);

/// Marks them, but for closed months, and returns how many there were. Each month is written whole,
/// one after the other. Who calls holds the folder. Throws FileFault.
int markDays(const Store& store, const PayrollLock& payroll, const EmployeeKey& key,
             const LeaveCalendar& leaves, LeavePeriod days);

}  // namespace winvrx
