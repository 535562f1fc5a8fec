#pragma once

#include "foundation/values/date.h"

#include <optional>
#include <string>

// The dates of the end of a contract: how many days of notice are owed, when they run, and by when
// the final account is paid. Pure arithmetic on calendar dates; what was typed over stands outside.
//
// Sources: CLT 477 par. 6 (payment), 482 (just cause), 483 (employer's fault), 484 (mutual fault),
// 484-A (agreement), 487 and 488 (notice, its shorter days); Lei 12.506/2011 with the labour
// ministry's technical note 184/2012 (30 days and 3 more for each full year, in the employee's
// favour only, at most 30 of them worked); TST Súmula 14 (half the notice by mutual fault).

namespace winvrx {

enum class TerminationType {
    WithoutCause = 1,
    JustCause,
    Resignation,
    EmployersFault,
    MutualFault,
    Agreement  ///< no entry of the leave screen's list: it is said beside the record
};

enum class NoticeType {
    Worked = 1,
    Paid  ///< the employer pays it instead, or a resigning employee does not work it
};

/// A figure of the termination with the rule that gives it, in one line for the operator.
template <typename Value>
struct Explained {
    Value value{};
    std::string rule = {};
};

struct TerminationDates {
    Explained<int> noticeDays;
    Explained<Date> noticeGiven;
    Explained<std::optional<Date>> noticeBegins;  ///< none where no notice is owed
    /// The last day of the notice: the contract ends here, projected where the notice is paid.
    Explained<Date> noticeEnds;
    Explained<Date> lastDayWorked;
    Explained<Date> paymentDue;
};

/// Full years of service on `date`, that day included: the year that begins on 16/04 is full on
/// 15/04 of the next one. An anniversary on 29/02 counts as full on the last of February.
[[nodiscard]] int fullYearsOfService(Date admission, Date date);

/// Days of notice that an end of this type on `given` owes.
[[nodiscard]] Explained<int> noticeDays(TerminationType type, Date admission, Date given);

/// Whether the contract ends on the day it is given: dismissed for just cause, or leaving without
/// working the notice.
[[nodiscard]] bool hasNoNotice(TerminationType type, NoticeType notice);

/// All dates that follow from the day on which notice is given. Requires admission <= given.
[[nodiscard]] TerminationDates terminationDates(TerminationType type, NoticeType notice,
                                                Date admission, Date given);

/// The ten days run from the end of the contract; where part of the notice is paid, from the last
/// day worked, which is how the final account is due in practice.
[[nodiscard]] Explained<Date> paymentDue(Date lastDayWorked);

}  // namespace winvrx
