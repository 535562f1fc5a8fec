#pragma once

#include "foundation/clock.h"
#include "foundation/data_folder.h"
#include "foundation/employee.h"

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

/// The employee list of one company: the file named by the company code and "CartaPonto".
class EmployeeRegister {
  public:
    EmployeeRegister(FileSystem& files, const DataFolder& folder, CompanyCode company);

    /// In file order; empty when there is no file. Throws FileFault.
    [[nodiscard]] std::vector<EmployeeLine> load() const;

    /// Rewrites the list. The list as it stood is first copied to "bk-", company code, the hour
    /// "dd-mm-yyyy-hh-00" and ".bkp", so that one copy an hour is kept. Throws FileFault.
    void save(const std::vector<EmployeeLine>& lines, Clock::Moment now);

    [[nodiscard]] bool hasEmployees() const { return !load().empty(); }

    /// The lowest three-digit code from "001" on that no line bears; nullopt when all are taken.
    [[nodiscard]] static std::optional<EmployeeCode> lowestFreeCode(
        const std::vector<EmployeeLine>& lines);

  private:
    FileSystem& files_;
    DataFolder folder_;
    CompanyCode company_;
};

/// The employees with a code whose shift passes the filter, in list order.
[[nodiscard]] std::vector<Employee> employeesOf(const std::vector<EmployeeLine>& lines,
                                                ShiftFilter filter);

}  // namespace winvrx
