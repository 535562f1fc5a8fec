#pragma once

#include "foundation/register/leave_record.h"
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

/// Whole days away from work.
struct TimeAway {
    enum class Kind {
        PaidLeave,  ///< the company pays
        Illness,    ///< the social security pays from the sixteenth day on
        Other       ///< does nothing to a vacation
    };
    Kind kind = Kind::Other;
    LeavePeriod days;
};

/// What costs a period its vacation (CLT, art. 133).
enum class Forfeit {
    PaidLeave,  ///< II and III: more than thirty days on end
    Illness     ///< IV: paid by the social security for more than six months in all
};

/// A year of work that gives a vacation, and the year in which it is to be taken.
struct AcquisitionPeriod {
    int number = 1;  ///< counted from 1 at the admission
    Date first{};
    Date last{};   ///< of one that is forfeit, the day before the return to work
    Date limit{};  ///< of the concession: a day of vacation after it is paid double
    std::optional<Forfeit> forfeit = {};

    /// The last day on which a vacation of so many days can begin without double pay.
    [[nodiscard]] Date lastStart(int days) const { return plusDays(limit, 1 - days); }
};

/// As no time away changes it. Requires number >= 1.
[[nodiscard]] AcquisitionPeriod acquisitionPeriod(Date admission, int number);

/// What an employee's periods are counted from.
struct AcquisitionCount {
    Date admission{};
    std::vector<TimeAway> away = {};  ///< in order of their first days
    /// First days of the periods of recorded vacations. A period is not forfeit where one of it is
    /// on record, or one of a later year as if nothing had been lost: what is recorded stands.
    std::vector<Date> recorded = {};
};
/// Those that have begun by `date`, the oldest first. Where time away by `date` makes one forfeit,
/// the next begins on the return to work (CLT, art. 133 par. 2). None before the admission.
[[nodiscard]] std::vector<AcquisitionPeriod> acquisitionPeriods(const AcquisitionCount& of,
                                                                Date date);
/// The period that runs on `date`; nullopt before the admission and where it is forfeit.
[[nodiscard]] std::optional<AcquisitionPeriod> runningPeriod(const AcquisitionCount& of, Date date);

/// "Férias perdidas: …, e o novo período começa em 31/05/2025.", with the law; empty of a period
/// that is not forfeit.
[[nodiscard]] std::string forfeitText(const AcquisitionPeriod& period);

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
