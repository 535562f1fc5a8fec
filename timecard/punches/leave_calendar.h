#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/values/date.h"

#include <string>
#include <vector>

namespace winvrx {

/// The first and the last day of a time away from work, both of them away.
struct LeavePeriod {
    Date first;
    Date last;

    [[nodiscard]] bool contains(Date date) const { return first <= date && date <= last; }
    [[nodiscard]] bool touches(WorkMonth month) const {
        return first <= lastDay(month) && last >= firstDay(month);
    }
};

/// The leaves of an employee, in order of record.
struct EmployeeLeaves {
    std::vector<LeavePeriod> periods;
    std::vector<std::string> unread;  ///< leaves whose days cannot be read, as they can be shown

    [[nodiscard]] bool touch(WorkMonth month) const;
    [[nodiscard]] bool contain(Date date) const;
};

/// Asked of the leaves.
class LeaveCalendar {
  public:
    virtual ~LeaveCalendar() = default;
    [[nodiscard]] virtual EmployeeLeaves leavesOf(const EmployeeKey& key) const = 0;
};

/// Answers from the file that the leaves keep for each employee: company code, "configAf", employee
/// code. A line that begins with three digits is a leave, with its first day in characters 31-40
/// and its last in 43-52; other lines are none.
class RecordedLeaves final : public LeaveCalendar {
  public:
    /// Both outlive this object; `folder` is the one in use when a question is asked.
    RecordedLeaves(const Store& store) : store_(store) {}

    [[nodiscard]] EmployeeLeaves leavesOf(const EmployeeKey& key) const override;

  private:
    Store store_;
};

}  // namespace winvrx
