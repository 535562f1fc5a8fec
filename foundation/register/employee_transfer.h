#pragma once

#include "foundation/register/employee_register.h"

#include <optional>
#include <vector>

namespace winvrx {

/// Whether a line of the list speaks of the same person: the same CPF, or the same name where one
/// of the two has no CPF.
[[nodiscard]] bool isRegistered(const std::vector<EmployeeLine>& lines, const Employee& person);

/// Whether the employee has a punch record of any month.
[[nodiscard]] bool hasPunchRecords(const Store& store, const EmployeeKey& key);

/// Moves an employee with every file to the end of another company's list.
///
/// The code goes along where neither a line nor a file has it there; otherwise the employee gets
/// the lowest such code, and the files are named by it. A mark says first who goes where; then the
/// other company's list and files are written, the files go, the line goes, and the mark last: cut
/// short at any point nothing is lost, and the move can be made again.
class EmployeeTransfer {
  public:
    EmployeeTransfer(const Store& store, CompanyCode from, CompanyCode to)
        : store_(store), from_(std::move(from)), to_(std::move(to)) {}

    /// The line that a move cut short has left in the other list: the marked one, if it is the same
    /// record but for its code. nullptr when there is none.
    [[nodiscard]] const EmployeeLine* findArrived(const std::vector<EmployeeLine>& there,
                                                  const EmployeeLine& leaving) const;

    /// Moves the line at `position`, which must have a code; `lines` is the list that it leaves and
    /// loses it. The caller saves the list, then calls `removeEndedMarks`. Throws Fault when the
    /// other company has no free code, and while a move to a third company is unfinished.
    void move(std::vector<EmployeeLine>& lines, std::size_t position, Clock::Moment now);

  private:
    [[nodiscard]] RecordFile markOf(const EmployeeCode& code) const;
    /// Where the employee's mark says that he goes.
    [[nodiscard]] std::optional<EmployeeKey> markedKey(const EmployeeCode& code) const;
    [[nodiscard]] EmployeeCode codeThere(const EmployeeCode& oldCode,
                                         const std::vector<EmployeeLine>& there) const;
    void requireNoOtherTarget(const EmployeeLine& leaving) const;
    /// The employee's files under the names that they take. Throws Fault when `resumed` and a file
    /// of that name holds something else.
    [[nodiscard]] std::vector<FileSystem::NewContent> filesThere(const EmployeeCode& oldCode,
                                                                 const EmployeeCode& newCode,
                                                                 bool resumed) const;

    Store store_;
    CompanyCode from_;
    CompanyCode to_;
};

/// Removes the marks of employees that the company's list does not have any more: their moves have
/// ended, or were cut short behind the list.
void removeEndedMarks(const Store& store, const CompanyCode& company,
                      const std::vector<EmployeeLine>& lines);

}  // namespace winvrx
