#pragma once

#include "foundation/register/leave_record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Whether an employee is there on a day: the one answer for fill, screen, hours and cards. Reads
// nothing by itself; `loadLeaveCalendar` reads the leave file once.
//
//     const LeaveCalendar calendar = loadLeaveCalendar(store, key, employee.admissionDate());
//     calendar.standingOn(date)            Standing::OnLeave
//     wordOf(calendar.leaveOn(date)->leave)  "FÉRIAS"

namespace winvrx {

/// What contract and leaves make of a day.
enum class Standing {
    Employed,         ///< a day like any other
    OnLeave,          ///< away for the whole day
    BeforeAdmission,  ///< nothing is asked for and nothing is owed
    AfterEnd          ///< likewise: the contract is over
};

/// Whether the day lies within the contract.
[[nodiscard]] constexpr bool isWithinContract(Standing standing) {
    return standing == Standing::Employed || standing == Standing::OnLeave;
}

/// A leave whose days can be read.
struct DatedLeave {
    Leave leave;
    LeavePeriod period;
    /// The days away: none for a leave of hours, of a termination those after the last day worked
    /// where that stands in it.
    std::optional<LeavePeriod> away;
};

/// "FÉRIAS, 04/03/2024 a 23/03/2024".
[[nodiscard]] std::string leaveText(const DatedLeave& leave);

class LeaveCalendar {
  public:
    /// Nobody's: no leaves, an open contract.
    LeaveCalendar() = default;
    LeaveCalendar(std::string_view leaveFileBytes, std::optional<Date> admission);

    [[nodiscard]] Standing standingOn(Date date) const;
    /// The leave that the day is away on, the first in order of record; nullptr where none.
    [[nodiscard]] const DatedLeave* leaveOn(Date date) const;
    /// Whether a leave on record, a termination or one of hours too, has days in the month.
    [[nodiscard]] bool touches(WorkMonth month) const;

    [[nodiscard]] const std::vector<DatedLeave>& leaves() const { return leaves_; }
    /// Leaves whose days cannot be read, and their lines as they can be shown.
    [[nodiscard]] const std::vector<Leave>& undated() const { return undated_; }
    [[nodiscard]] const std::vector<std::string>& unread() const { return unread_; }
    [[nodiscard]] std::optional<Date> admission() const { return admission_; }
    [[nodiscard]] std::optional<Date> inactiveSince() const { return inactiveSince_; }
    /// The last day of the contract: of who is inactive the last day worked, as his last
    /// termination has it, or else the day of the inactivation. Who is active has none, whatever
    /// termination stands on record: he may have been reactivated.
    [[nodiscard]] std::optional<Date> contractEnd() const { return contractEnd_; }

  private:
    std::vector<DatedLeave> leaves_;
    std::vector<Leave> undated_;
    std::vector<std::string> unread_;
    std::optional<Date> admission_;
    std::optional<Date> inactiveSince_;
    std::optional<Date> contractEnd_;
};

/// Throws FileFault.
[[nodiscard]] LeaveCalendar loadLeaveCalendar(const Store& store, const EmployeeKey& key,
                                              std::optional<Date> admission = std::nullopt);

}  // namespace winvrx
