#pragma once

#include "personnel/leaves/termination_dates.h"
#include "personnel/pay/employer_dues.h"
#include "personnel/pay/income_tax.h"
#include "personnel/pay/vacation_rules.h"

#include <optional>

// The figures of the end of a contract, for each way in which it ends. The dates and the days of
// notice are those of termination_dates.h.

namespace winvrx {

/// What payrolls on record paid out, and what FGTS fell on in them.
struct PaidAlready {
    Money net = {};
    Money fgtsBase = {};
};

/// What they paid of what the end of the contract pays: each net of what was withheld, so that
/// INSS and IRRF of the whole, less the net, leave what is still due of both.
struct PaidBeforeTheEnd {
    PaidAlready month = {};            ///< of the last day
    PaidAlready firstInstalment = {};  ///< of the year's 13th
    PaidAlready secondInstalment = {};
    PaidAlready vacations = {};  ///< that would begin after the last day
};

struct TerminationCase {
    TerminationType type = TerminationType::WithoutCause;
    NoticeType notice = NoticeType::Paid;
    Date admission{};
    Date given{};  ///< the day on which notice is given
    /// As recorded; worked out of type, notice, admission and the day it is given where not said.
    std::optional<TerminationDates> dates = {};
    Money salary = {};
    /// Of the vacations; counted from the admission alone where not said.
    std::optional<AcquisitionCount> periods = {};
    Money averages = {};   ///< of variable and risk pay, in notice, 13th and vacation
    Money monthsPay = {};  ///< of the last month besides the balance, taxed; below zero too
    int daysAway = 0;      ///< of the last month, without pay
    PaidBeforeTheEnd before = {};
    std::vector<Date> absentDays = {};  ///< unjustified: no service in the year's twelfths
    int overduePeriods = 0;             ///< vacations earned and not taken
    int doubledPeriods = 0;             ///< of these, past the limit of the concession
    int overdueDays = 0;     ///< left of periods partly taken; past the limit counted twice
    int absences = 0;        ///< unjustified, in the vacation period that runs
    Money fgtsAccount = {};  ///< its balance before this account
    int dependants = 0;
    Money alimony = {};
    Money privatePension = {};
    std::optional<Date> paid = {};  ///< the day on which it is due where not said
    FgtsRate fgtsRate = FgtsRate::Usual;
};

/// Lines that are not due are zero and without a memo.
struct TerminationPay {
    TerminationDates dates;
    Reckoning balance;         ///< the days of the last month
    Reckoning notice;          ///< the part of the notice that is paid, not worked
    Reckoning noticeDeducted;  ///< a resigning employee who does not work it
    int thirteenthTwelfths = 0;
    Reckoning thirteenth;
    int vacationTwelfths = 0;
    Reckoning vacation;  ///< in twelfths
    Reckoning vacationThird;
    Reckoning overdue;    ///< whole periods, with their third
    Reckoning firstPaid;  ///< instalment of the 13th
    Reckoning secondPaid;
    Reckoning monthPaid;
    Reckoning vacationsPaid;
    Reckoning inssBalance;
    Reckoning inssThirteenth;
    IncomeTax taxBalance;
    IncomeTax taxThirteenth;
    Reckoning fgts;  ///< of this account
    Reckoning fgtsFine;
    Money fgtsBase;
    Money gross;  ///< with what the last month pays besides the balance
    Money deductions;
    Money net;  ///< without FGTS and fine, which go to the account; may be below zero
};

/// Requires admission <= given. Throws LegalTableFault for dates before the tables.
[[nodiscard]] TerminationPay terminationPay(const PayrollLaw& law, const TerminationCase& end);

}  // namespace winvrx
