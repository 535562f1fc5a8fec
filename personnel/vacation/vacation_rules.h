#pragma once

#include "foundation/values/date.h"

#include <optional>
#include <string>
#include <vector>

// The dates and days of vacations (CLT, art. 129 to 145), pure arithmetic.

namespace winvrx {

/// The same day some months later. Where that month has no such day, the first of the next one
/// (Código Civil, art. 132 par. 3): a year from 29/02/2024 is 01/03/2025.
[[nodiscard]] Date plusMonths(Date date, int months);

/// Days of vacation that so many unjustified absences leave (CLT, art. 130): 30, 24, 18, 12 or 0.
[[nodiscard]] int vacationDays(int absences);

/// A year of work that gives a vacation, and the year in which it is to be taken.
struct AcquisitionPeriod {
    int number = 1;  ///< counted from 1 at the admission
    Date first{};
    Date last{};
    Date limit{};  ///< of the concession: a day of vacation after it is paid double

    /// The last day on which a vacation of so many days can begin without double pay.
    [[nodiscard]] Date lastStart(int days) const { return plusDays(limit, 1 - days); }
};

/// Requires number >= 1.
[[nodiscard]] AcquisitionPeriod acquisitionPeriod(Date admission, int number);
/// Those that have begun by `date`, the oldest first; the last is the one that runs. None before
/// the admission.
[[nodiscard]] std::vector<AcquisitionPeriod> acquisitionPeriods(Date admission, Date date);

/// Twelfths of a vacation from `first` to `last`, both included: whole months and a rest of more
/// than fourteen days (CLT, art. 146). May pass twelve.
[[nodiscard]] int vacationTwelfths(Date first, Date last);

/// How many days of a vacation lie past the limit of the concession (CLT, art. 137; Súmula 81).
[[nodiscard]] int daysPastLimit(const AcquisitionPeriod& period, Date start, int days);

/// What forbids fractions of so many days of a vacation of `granted` days, in one sentence; nullopt
/// where nothing does: three at most, one of them of fourteen days or more, none of less than five,
/// at most a third sold, together what is granted (CLT, art. 134 and 143).
[[nodiscard]] std::optional<std::string> fractionsProblem(int granted,
                                                          const std::vector<int>& fractions,
                                                          int sold = 0);

/// The last days on which the notice of a vacation is given (CLT, art. 135), on which it is paid
/// (art. 145), and on which an employee may ask to sell a third of it (art. 143 par. 1).
[[nodiscard]] Date vacationNoticeDue(Date start);
[[nodiscard]] Date vacationPaymentDue(Date start);
[[nodiscard]] Date saleRequestDue(const AcquisitionPeriod& period);

}  // namespace winvrx
