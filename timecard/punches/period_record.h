#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/register/employee_queries.h"
#include "timecard/month/closing_period.h"
#include "timecard/punches/punch_record.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace winvrx {

/// What changes on disk with the punches of a month: the punch record, the record of the month's
/// closing period where that is not the calendar month or the record stands from a time when it was
/// not, and the record of the next one where it stands and is not closed.
class PunchFiles {
  public:
    /// The referred objects outlive this one.
    PunchFiles(const Store& store, const PayrollLock& payroll, const MonthSettings& settings);

    /// From now on a record stands when its name is among these: for a command on many employees.
    void lookAmong(FolderNames names) { names_ = std::move(names); }

    /// Adds the files of one employee to `batch`. `record` is the new punch record, whole.
    void add(std::vector<FileSystem::NewContent>& batch, const EmployeeKey& key,
             std::string record) const;

    /// Deletes the month's punches of one employee: the record of the next period first loses them,
    /// the punch record goes last, so that the command can be given again.
    void remove(const EmployeeKey& key) const;

  private:
    [[nodiscard]] bool hasPeriodFile(const EmployeeKey& key, WorkMonth month) const;

    Store store_;
    std::optional<FolderNames> names_;
    const PayrollLock& payroll_;
    WorkMonth month_;
    DayPeriod period_;
    DayPeriod nextPeriod_;
};

}  // namespace winvrx
