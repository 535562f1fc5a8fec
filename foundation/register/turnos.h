#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "foundation/register/employee_queries.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// The small screen that changes the shift of employees already registered. Holds the list as the
/// screen shows it; a command that is refused or fails leaves list and file as they were.
class Turnos {
  public:
    Turnos(const Workplace& at, const RotationMembership& rotation, const PayrollLock& payroll)
        : at_(at), rotation_(rotation), payroll_(payroll), list_(at.session.shiftFilter) {}

    /// Reads the list of the selected company; none selected gives an empty list.
    void load();
    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const EmployeeList& list() const { return list_; }
    /// "01 EMPRESA MODELO LTDA"; empty when no company is selected.
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }

    /// Gives the employee, one of the list, another shift, unless none is chosen, he is in a
    /// rotation group, his scale bars it, or his record has changed since it was shown. A payroll
    /// that has been generated is warned of, as in the register. True when it was recorded.
    [[nodiscard]] bool change(const Employee& employee, std::optional<Shift> shift);
    /// Tells that an employee has to be selected first.
    void askForEmployee();

  private:
    /// The employee's place in the list; throws Fault when he is no longer there as he was shown.
    [[nodiscard]] static EmployeeLine& lineOfEmployee(std::vector<EmployeeLine>& lines,
                                                      const Employee& employee);

    Workplace at_;
    const RotationMembership& rotation_;
    const PayrollLock& payroll_;
    EmployeeList list_;
    std::string companyTitle_;
};

}  // namespace winvrx
