#pragma once

namespace winvrx {

/// What the list of the time-card screen says of an employee beside his name.
struct EmployeeMark {
    bool onLeave = false;  ///< in the work month
    bool closed = false;   ///< the month's payroll has been generated
};

}  // namespace winvrx
