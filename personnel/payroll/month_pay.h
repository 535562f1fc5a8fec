#pragma once

#include "personnel/payroll/employer_dues.h"
#include "personnel/payroll/hours_pay.h"
#include "personnel/payroll/income_tax.h"
#include "personnel/payroll/partial_month.h"
#include "personnel/payroll/risk_pay.h"
#include "timecard/month/business_days.h"

// The pay of one employee for one month, from figures; who gathers them stands outside.

namespace winvrx {

/// Extra hours at one rate.
struct ExtraHours {
    int percent = 50;
    std::chrono::seconds byDay{};
    std::chrono::seconds byNight{};  ///< clock hours
};

struct MonthPayCase {
    MonthPart part;  ///< of which days the salary is paid
    Date paid{};
    Money salary = {};
    Fraction divisor = 220;
    ExtraHours minimum = {.percent = 50};
    ExtraHours maximum = {.percent = 100};
    std::chrono::seconds nightHours{};  ///< clock hours, those of extra work apart
    Fraction unhealthyPercent = 0;
    bool isDangerous = false;
    int absentDays = 0;
    int restsLost = 0;               ///< by absences
    int restsLostByDelay = 0;        ///< counts by the company's setting
    std::chrono::seconds missing{};  ///< delays, whole days apart
    MonthDayCounts days = {};
    Money voucherCost = {};
    Fraction advancePercent = 0;
    int children = 0;    ///< with a right to the salary-family
    int dependants = 0;  ///< of the IRRF
    Money alimony = {};
    Money privatePension = {};
    /// Of a vacation in the month: what falls in its INSS, and what is withheld of it already.
    Money vacationBase = {};
    Money vacationInss = {};
    FgtsRate fgtsRate = FgtsRate::Usual;
};

/// Lines that are not due are zero and without a memo.
struct MonthPay {
    Reckoning salary;
    RiskPay risk;
    Reckoning familyQuota;
    Reckoning minimumOvertime;
    Reckoning maximumOvertime;
    Reckoning night;
    Reckoning minimumNightOvertime;
    Reckoning maximumNightOvertime;
    Reckoning restReflex;
    Reckoning absences;
    Reckoning restsLost;
    Reckoning missing;
    Money base;  ///< of INSS, IRRF and FGTS
    Reckoning inss;
    IncomeTax tax;
    Reckoning voucher;
    Reckoning advance;
    Reckoning fgts;
    Money credits;  ///< of earnings, before absences
    Money debits;   ///< of everything taken off, absences among it
    Money net;      ///< credits − debits
};

[[nodiscard]] MonthPay monthPay(const PayrollLaw& law, const MonthPayCase& month);

}  // namespace winvrx
