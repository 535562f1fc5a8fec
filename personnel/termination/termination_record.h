#pragma once

#include "foundation/register/leave_record.h"
#include "personnel/leaves/termination_dates.h"

#include <string>

namespace winvrx {

/// The end of a contract as the leave screen recorded it.
struct TerminationRecord {
    TerminationType type = TerminationType::WithoutCause;
    NoticeType notice = NoticeType::Paid;
    Date admission{};
    /// Those recorded in place of what follows from types and notice stand, and say so.
    TerminationDates dates;
    std::string typeText;    ///< without its number; an agreement has its own
    std::string noticeText;  ///< without its number
};

/// Reads the leave of a termination. `byAgreement` makes one of a dismissal without cause or of a
/// resignation (CLT, art. 484-A): the dates that followed from the recorded type follow anew.
/// Throws Fault, naming what is missing or cannot be.
[[nodiscard]] TerminationRecord terminationRecord(const Leave& leave, Date admission,
                                                  bool byAgreement);

}  // namespace winvrx
