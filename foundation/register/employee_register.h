#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/register/employee.h"
#include "foundation/values/clock.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// A line of the employee list. A line whose code is not three digits is kept as it stands and has
/// no code: it can be shown, but not selected or changed.
struct EmployeeLine {
    std::string bytes;
    Employee employee;

    [[nodiscard]] std::optional<EmployeeCode> code() const { return employee.employeeCode(); }
};

/// The line of an employee, built upon `existing` as `encode` does.
[[nodiscard]] EmployeeLine lineOf(const Employee& employee, std::string existing = {});

/// The employee list of one company: the file named by the company code and "CartaPonto".
class EmployeeRegister {
  public:
    EmployeeRegister(const Store& store, CompanyCode company);

    /// In file order; empty when there is no file. Throws FileFault.
    [[nodiscard]] std::vector<EmployeeLine> load() const;

    /// Rewrites the list. The list as it stood is first copied to "bk-", company code, the hour
    /// "dd-mm-yyyy-hh-00" and ".bkp", so that one copy an hour is kept. Throws FileFault.
    void save(const std::vector<EmployeeLine>& lines, Clock::Moment now);

    /// The two steps of `save`, for a caller that writes more along with the list: the copy must
    /// last before the list is written, or a list cut short could be copied over it.
    void keepCopy(Clock::Moment now);
    [[nodiscard]] FileSystem::NewContent contentOf(const std::vector<EmployeeLine>& lines) const;

    [[nodiscard]] bool hasEmployees() const { return !load().empty(); }

    /// The lowest three-digit code from "001" on that no line bears; nullopt when all are taken.
    [[nodiscard]] static std::optional<EmployeeCode> lowestFreeCode(
        const std::vector<EmployeeLine>& lines);

  private:
    Store store_;
    CompanyCode company_;
};

/// Whether a line of the list has the code.
[[nodiscard]] bool bears(const std::vector<EmployeeLine>& lines,
                         const std::optional<EmployeeCode>& code);

/// The employees with a code whose shift passes the filter, in list order.
[[nodiscard]] std::vector<Employee> employeesOf(const std::vector<EmployeeLine>& lines,
                                                ShiftFilter filter);

}  // namespace winvrx
