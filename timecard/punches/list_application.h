#pragma once

#include "foundation/register/employee_queries.h"
#include "foundation/register/employee_register.h"
#include "foundation/register/leave_calendar.h"
#include "timecard/punches/minute_variation.h"
#include "timecard/punches/minutes_option.h"
#include "timecard/punches/period_record.h"
#include "timecard/punches/rotation_calendar.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace winvrx {

/// What the punches ask of other subjects; all outlive the commands.
struct PunchDesk {
    const RotationCalendar& rotation;
    const PayrollLock& payroll;
};

/// How a month is to be filled.
struct ApplicationOrder {
    CompanyCode company;
    MonthSettings settings;
    Minutes minutes = Minutes::Fixed;
    std::string situation;                   ///< of days of work without times
    std::optional<StandardSchedule> common;  ///< becomes the schedule of each employee
};

/// Fills the cards of a list of employees. Reads only; what is to be written is a batch of whole
/// files.
class ListApplication {
  public:
    using Batch = std::vector<FileSystem::NewContent>;
    /// Told after each employee; false cancels.
    using Progress = std::function<bool(int done, int total)>;

    /// `files`, `folder` and `desk` outlive this object.
    ListApplication(const Store& store, const PunchDesk& desk, ApplicationOrder order);

    /// Fills the cards of these employees as the register has them now, that of a code which
    /// several bear for the first of them. nullopt when cancelled.
    [[nodiscard]] std::optional<Batch> fill(const std::vector<EmployeeCode>& codes,
                                            const Progress& progress);
    [[nodiscard]] bool hasFilled(const EmployeeCode& code) const { return filled_.contains(code); }
    [[nodiscard]] int filled() const { return static_cast<int>(filled_.size()); }
    /// One line for each kind of remark on the last `fill`, with the names it is about, `mostNames`
    /// of them at most; empty when everyone's card was filled as a matter of course.
    [[nodiscard]] std::string remarks(std::size_t mostNames) const;

    /// The card of one employee, whose own records decide.
    void fillOne(Batch& batch, const Employee& employee, const EmployeeCode& code,
                 const LeaveCalendar& leaves);

  private:
    enum class Remark {
        Closed,
        Inactive,
        NoGroup,
        AdmittedLater,
        Unreadable,
        Repeated,
        Gone,
        NoTimes,
        OnLeave
    };

    [[nodiscard]] std::optional<Remark> hindrance(const Employee& employee,
                                                  const EmployeeCode& code,
                                                  const LeaveCalendar& leaves) const;
    [[nodiscard]] StandardSchedule scheduleOf(const EmployeeCode& code,
                                              const RotationMonth* rotation) const;
    /// nullptr for who is on no rotation scale, or in no group.
    [[nodiscard]] const RotationMonth* rotationOf(const Employee& employee,
                                                  const EmployeeCode& code) const;
    /// Throws Fault, not FileFault, when his leave file cannot be read.
    [[nodiscard]] LeaveCalendar leavesOf(const Employee& employee, const EmployeeCode& code) const;
    /// Asks once what is asked of everyone.
    void look();
    void take(Batch& batch, const Employee& employee, const EmployeeCode& code);

    Store store_;
    PunchDesk desk_;
    ApplicationOrder order_;
    PunchFiles punchFiles_;
    MinuteVariation variation_;
    std::set<EmployeeCode> closed_;
    mutable std::optional<RotationMonths> rotations_;  ///< read when first asked for
    std::set<EmployeeCode> withLeaves_;
    std::map<Remark, std::vector<std::string>> remarks_;
    std::set<EmployeeCode> filled_;
};

}  // namespace winvrx
