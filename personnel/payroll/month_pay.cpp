#include "personnel/payroll/month_pay.h"

#include "personnel/payroll/absences.h"
#include "personnel/payroll/family_quota.h"
#include "personnel/payroll/inss.h"
#include "personnel/payroll/usual_deductions.h"

namespace winvrx {

namespace {

std::string percentWords(const char* words, int percent) {
    return words + (" " + std::to_string(percent)) + "%";
}

class MonthReckoner {
  public:
    MonthReckoner(const PayrollLaw& law, const MonthPayCase& month)
        : law_(law), month_(month), share_(paidShare(month.part, law.settings.partialMonth)) {}

    [[nodiscard]] MonthPay reckoned() && {
        reckonFixedPay();
        reckonHours();
        reckonLosses();
        reckonBase();
        reckonDeductions();
        reckonTotals();
        return std::move(pay_);
    }

  private:
    void reckonFixedPay() {
        pay_.salary = partialSalary(month_.salary, month_.part, law_.settings.partialMonth);
        wholeRisk_ = riskOf(month_.salary);
        pay_.risk = share_ == Fraction(1) ? wholeRisk_ : partialRisk();
    }

    [[nodiscard]] RiskPay riskOf(Money salary) const {
        Reckoning unhealthy;
        Reckoning danger;
        if (month_.unhealthyPercent > Fraction(0))
            unhealthy = unhealthyPay(law_, month_.unhealthyPercent, salary, month_.part.month());
        if (month_.isDangerous) danger = dangerPay(salary);
        return betterRiskPay(std::move(unhealthy), std::move(danger));
    }

    [[nodiscard]] RiskPay partialRisk() const {
        const auto part = [&](const Reckoning& whole) {
            if (whole.amount.cents == 0) return whole;
            const Reckoning days = Sum(whole.amount).times(share_).rounded("Pelos dias do mês");
            Memo memo = whole.memo;
            append(memo, days.memo);
            return Reckoning{days.amount, memo};
        };
        return {part(wholeRisk_.unhealthy), part(wholeRisk_.danger)};
    }

    /// Súmula 264 and OJ 259: additions are part of the hour; whether pay for unhealthy work is
    /// part of the night hour, the company says.
    void reckonHours() {
        Money nightPay = month_.salary + wholeRisk_.danger.amount;
        if (law_.settings.unhealthyPayIsInNightBase)
            nightPay = nightPay + wholeRisk_.unhealthy.amount;
        if (month_.nightHours.count() > 0)
            pay_.night = nightPremium(law_, {nightPay, month_.divisor}, month_.nightHours);
        Money extraPay = month_.salary + wholeRisk_.total();
        if (law_.settings.nightPremiumIsInOvertimeBase) extraPay = extraPay + pay_.night.amount;
        const HourBase base{extraPay, month_.divisor};
        reckonExtra(base, month_.minimum, pay_.minimumOvertime, pay_.minimumNightOvertime);
        reckonExtra(base, month_.maximum, pay_.maximumOvertime, pay_.maximumNightOvertime);
        pay_.restReflex =
            restReflex({pay_.minimumOvertime.amount, pay_.maximumOvertime.amount, pay_.night.amount,
                        pay_.minimumNightOvertime.amount, pay_.maximumNightOvertime.amount},
                       month_.days.businessDays, month_.days.restDays);
    }

    void reckonExtra(const HourBase& base, const ExtraHours& hours, Reckoning& byDay,
                     Reckoning& byNight) const {
        if (hours.byDay.count() > 0)
            byDay = overtimePay(law_, base, hours.percent, hours.byDay,
                                percentWords("Horas extras", hours.percent));
        if (hours.byNight.count() > 0)
            byNight = nightOvertimePay(law_, base, hours.percent, hours.byNight,
                                       percentWords("Horas extras noturnas", hours.percent));
    }

    void reckonLosses() {
        pay_.absences = daysLost(month_.salary, month_.absentDays, "Faltas");
        const int byDelay = law_.settings.delayLosesWeeklyRest ? month_.restsLostByDelay : 0;
        pay_.restsLost = daysLost(month_.salary, month_.restsLost + byDelay, "DSR perdido");
        pay_.missing = timeLost(law_, {month_.salary, month_.divisor}, month_.missing);
    }

    [[nodiscard]] Money lost() const {
        return pay_.absences.amount + pay_.restsLost.amount + pay_.missing.amount;
    }

    void reckonBase() {
        pay_.credits = pay_.salary.amount + pay_.risk.total() + pay_.minimumOvertime.amount +
                       pay_.maximumOvertime.amount + pay_.night.amount +
                       pay_.minimumNightOvertime.amount + pay_.maximumNightOvertime.amount +
                       pay_.restReflex.amount;
        pay_.base = atLeastZero(pay_.credits - lost());
    }

    void reckonDeductions() {
        const WorkMonth month = month_.part.month();
        const Money inssBase = pay_.base + month_.vacationBase;
        pay_.familyQuota = familyQuota(law_, inssBase, month_.children, month, share_);
        pay_.inss = inss(law_, inssBase, month);
        if (month_.vacationBase.cents > 0) leaveOutVacationInss();
        pay_.tax = incomeTax(law_, {.kind = TaxedIncome::Month,
                                    .income = pay_.base,
                                    .inss = pay_.inss.amount,
                                    .dependants = month_.dependants,
                                    .alimony = month_.alimony,
                                    .privatePension = month_.privatePension,
                                    .paid = month_.paid});
        pay_.voucher = transportVoucher(month_.salary, month_.voucherCost, voucherShare());
        pay_.advance = salaryAdvance(month_.salary, month_.advancePercent);
        pay_.fgts = fgts(law_, pay_.base, month_.fgtsRate);
    }

    void leaveOutVacationInss() {
        const Reckoning rest = Sum(pay_.inss.amount)
                                   .minus(month_.vacationInss)
                                   .rounded("INSS sem o que já se descontou nas férias");
        append(pay_.inss.memo, rest.memo);
        pay_.inss.amount = atLeastZero(rest.amount);
    }

    [[nodiscard]] Fraction voucherShare() const {
        return law_.settings.voucherFollowsDaysWorked ? share_ : Fraction(1);
    }

    void reckonTotals() {
        pay_.credits = pay_.credits + pay_.familyQuota.amount;
        pay_.debits = lost() + pay_.inss.amount + pay_.tax.withheld + pay_.voucher.amount +
                      pay_.advance.amount;
        pay_.net = pay_.credits - pay_.debits;
    }

    const PayrollLaw& law_;
    const MonthPayCase& month_;
    Fraction share_;
    RiskPay wholeRisk_;
    MonthPay pay_;
};

}  // namespace

MonthPay monthPay(const PayrollLaw& law, const MonthPayCase& month) {
    return MonthReckoner(law, month).reckoned();
}

}  // namespace winvrx
