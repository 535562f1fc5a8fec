#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/line_file.h"
#include "foundation/files/record_names.h"
#include "foundation/register/employee.h"
#include "foundation/values/clock.h"

#include <set>
#include <vector>

namespace winvrx {

using EmployeeLine = StoredLine<Employee>;

/// The employee list of one company: the file named by the company code and "CartaPonto".
class EmployeeRegister {
  public:
    EmployeeRegister(const Store& store, CompanyCode company)
        : store_(store),
          company_(std::move(company)),
          list_({store_, company_, kEmployeeListStem}) {}

    /// In file order; empty when there is no file. Throws FileFault.
    [[nodiscard]] std::vector<EmployeeLine> load() const { return list_.load(); }

    /// Rewrites the list. The list as it stood is first copied to "bk-", company code, the hour
    /// "dd-mm-yyyy-hh-00" and ".bkp", so that one copy an hour is kept. Throws FileFault.
    void save(const std::vector<EmployeeLine>& lines, Clock::Moment now);

    /// The two steps of `save`, for a caller that writes more along with the list: the copy must
    /// last before the list is written, or a list cut short could be copied over it.
    void keepCopy(Clock::Moment now);
    [[nodiscard]] FileSystem::NewContent contentOf(const std::vector<EmployeeLine>& lines) const {
        return list_.contentOf(lines);
    }

    /// The codes that files in the folder bear, whether a line has them or not.
    [[nodiscard]] std::set<EmployeeCode> codesOfFiles() const;

  private:
    Store store_;
    CompanyCode company_;
    LineFile<Employee> list_;
};

/// The employee's line as it is on record. Throws Fault when no line has his code any more.
[[nodiscard]] EmployeeLine requireRegistered(const Store& store, const EmployeeKey& key);

/// The employees with a code whose shift passes the filter, in list order.
[[nodiscard]] std::vector<Employee> employeesOf(const std::vector<EmployeeLine>& lines,
                                                ShiftFilter filter);

}  // namespace winvrx
