#pragma once

#include "foundation/desk/command.h"
#include "timecard/punches/list_application.h"
#include "timecard/rotation/rotation_plan.h"

#include <vector>

// What recording and deleting groups does to files. Who calls a function that writes or makes a
// batch holds the folder.

namespace winvrx {

/// A company's groups and cards of one month.
struct GroupWork {
    const Workplace& at;
    const PayrollLock& payroll;
    CompanyCode company;
    MonthSettings settings;
};

/// Of these the employees whose month is closed, and those who have punches of the month.
[[nodiscard]] std::vector<EmployeeCode> closedAmong(const GroupWork& work,
                                                    const std::vector<EmployeeCode>& employees);
[[nodiscard]] std::vector<EmployeeCode> appliedAmong(const GroupWork& work,
                                                     const std::vector<EmployeeCode>& employees);

/// The employees whose days differ between the group as recorded, if it is, and as it is to be.
[[nodiscard]] std::vector<EmployeeCode> changedMembers(const RotationGroup* recorded,
                                                       const RotationGroup& group, WorkMonth month);

/// The cards of these employees filled from `groups`, whatever is on record; `remarks` tells who
/// could not be filled. Throws Fault when a work-time table cannot be applied.
[[nodiscard]] ListApplication::Batch reappliedCards(const GroupWork& work,
                                                    const std::vector<RotationGroup>& groups,
                                                    const std::vector<EmployeeCode>& employees,
                                                    std::string& remarks);

/// Deletes the month's punches of these employees, and puts the closing periods right that show
/// them.
void removePunches(const GroupWork& work, const std::vector<EmployeeCode>& employees);

}  // namespace winvrx
