#pragma once

#include "personnel/pay/employer_dues.h"
#include "personnel/pay/hours_pay.h"
#include "personnel/pay/income_tax.h"
#include "personnel/pay/partial_month.h"
#include "personnel/pay/risk_pay.h"
#include "timecard/month/business_days.h"

#include <optional>

// The pay of one employee for one month, from figures; who gathers them stands outside. First what
// is earned and lost, then, on the base that this leaves, what is taken off.

namespace winvrx {

/// Extra hours of one level.
struct ExtraHours {
    int percent = 50;
    int nightPercent = 50;
    std::chrono::seconds byDay{};
    std::chrono::seconds byNight{};  ///< clock hours
};

struct MonthPayCase {
    MonthPart part;  ///< of which days the salary is paid
    Date paid{};
    Money salary = {};
    Fraction divisor = 220;
    ExtraHours minimum = {.percent = 50, .nightPercent = 50};
    ExtraHours maximum = {.percent = 100, .nightPercent = 100};
    std::chrono::seconds nightHours{};  ///< clock hours, those of extra work apart
    Fraction unhealthyPercent = 0;
    bool isDangerous = false;
    int absentDays = 0;
    int restsLost = 0;               ///< by absences
    int restsLostByDelay = 0;        ///< counts by the company's setting
    std::chrono::seconds missing{};  ///< delays, whole days apart
    MonthDayCounts days = {};
    Fraction voucherPercent = 6;
    /// Of the tickets: zero, no voucher; nullopt, not known, and the limit is taken.
    std::optional<Money> voucherCost = Money{};
    Fraction advancePercent = 0;
    int children = 0;             ///< with a right to the salary-family
    int dependants = 0;           ///< of the IRRF
    Money alimony = {};           ///< by court decision; what a share of the pay gives comes on top
    Fraction alimonyOfGross = 0;  ///< per cent of what INSS and IRRF fall on
    Fraction alimonyOfNet = 0;    ///< per cent of that less both, the IRRF less the alimony
    Money privatePension = {};
    /// Of a vacation in the month: what falls in its INSS, and what is withheld of it already.
    Money vacationBase = {};
    Money vacationInss = {};
    FgtsRate fgtsRate = FgtsRate::Usual;
};

/// Lines that are not due are zero and without a memo.
struct MonthEarnings {
    Reckoning salary;
    RiskPay risk;
    Reckoning minimumOvertime;
    Reckoning maximumOvertime;
    Reckoning night;
    Reckoning minimumNightOvertime;
    Reckoning maximumNightOvertime;
    Reckoning restReflex;
    Reckoning absences;
    Reckoning restsLost;
    Reckoning missing;
};
[[nodiscard]] MonthEarnings monthEarnings(const PayrollLaw& law, const MonthPayCase& month);

struct MonthDeductions {
    Reckoning familyQuota;  ///< paid, not taken off, but by the same base
    Reckoning inss;
    Reckoning alimony;
    IncomeTax tax;
    Reckoning voucher;
    Reckoning advance;
};
/// `base` is what INSS and IRRF fall on.
[[nodiscard]] MonthDeductions monthDeductions(const PayrollLaw& law, const MonthPayCase& month,
                                              Money base);

/// The additions of a whole month.
[[nodiscard]] RiskPay wholeRiskPay(const PayrollLaw& law, const MonthPayCase& month);

}  // namespace winvrx
