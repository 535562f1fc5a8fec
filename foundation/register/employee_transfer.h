#pragma once

#include "foundation/register/employee_register.h"

#include <vector>

namespace winvrx {

/// Whether a line of the list speaks of the same person: the same CPF, or the same name where one
/// of the two has no CPF.
[[nodiscard]] bool isRegistered(const std::vector<EmployeeLine>& lines, const Employee& person);

/// The line that a transfer cut short has left in the other list: the same record but for its
/// code. nullptr when there is none.
[[nodiscard]] const EmployeeLine* arrivedLine(const std::vector<EmployeeLine>& there,
                                              const EmployeeLine& leaving);

/// Whether the employee has a punch record of any month.
[[nodiscard]] bool hasPunchRecords(const Store& store, const EmployeeKey& key);

/// Moves an employee with every file to the end of another company's list.
///
/// The code goes along where neither a line nor another one's file has it there; otherwise the
/// employee gets the lowest such code, and the files are named by it. The other company's list and
/// files are written first, then the files go, then the line: cut short at any point nothing is
/// lost, and the move can be made again.
class EmployeeTransfer {
  public:
    EmployeeTransfer(const Store& store, CompanyCode from, CompanyCode to)
        : store_(store), from_(std::move(from)), to_(std::move(to)) {}

    /// Moves the line at `position`, which must have a code; `lines` is the list that it leaves and
    /// loses it. Throws Fault when the other company has no free code.
    void move(std::vector<EmployeeLine>& lines, std::size_t position, Clock::Moment now);

  private:
    /// No line there bears the code, and no file of it holds anything but what `oldCode` brings.
    [[nodiscard]] bool isFreeThere(const EmployeeCode& code, const EmployeeCode& oldCode,
                                   const std::vector<EmployeeLine>& there) const;
    [[nodiscard]] EmployeeLine lineThere(const EmployeeLine& leaving,
                                         const std::vector<EmployeeLine>& there) const;
    /// The employee's files under the names that they take. Throws Fault when `resumed` and a file
    /// of that name holds something else.
    [[nodiscard]] std::vector<FileSystem::NewContent> filesThere(const EmployeeCode& oldCode,
                                                                 const EmployeeCode& newCode,
                                                                 bool resumed) const;

    Store store_;
    CompanyCode from_;
    CompanyCode to_;
};

}  // namespace winvrx
