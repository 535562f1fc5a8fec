#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/register/employee_register.h"
#include "personnel/vacation/vacation_periods.h"

#include <string>
#include <vector>

namespace winvrx {

struct EmployeeDue {
    EmployeeCode employee;
    std::string name;
    DueVacation due;
};

/// Those of a company whose vacation must begin soon, in the order of the list; who is inactive is
/// not among them. Of whom the admission brings to no limit only leaves are read: time away may
/// have moved his periods. Throws FileFault.
[[nodiscard]] std::vector<EmployeeDue> dueVacations(const Store& store, const CompanyCode& company,
                                                    const std::vector<EmployeeLine>& employees,
                                                    const FolderNames& names, Date today);

/// "2 a vencer até 20/01/2027"; what is said where none is, or nothing can be read.
[[nodiscard]] std::string dueState(const Store& store, const CompanyCode& company, Date today);

}  // namespace winvrx
