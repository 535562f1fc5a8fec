#include "personnel/pay/month_pay.h"

#include "personnel/pay/absences.h"
#include "personnel/pay/inss.h"
#include "personnel/pay/usual_deductions.h"

namespace winvrx {

namespace {

std::string percentWords(const char* words, int percent) {
    return words + (" " + std::to_string(percent)) + "%";
}

Fraction shareOf(const PayrollLaw& law, const MonthPayCase& month) {
    return paidShare(month.part, law.settings.partialMonth);
}

void reckonExtra(const PayrollLaw& law, const HourBase& base, const ExtraHours& hours,
                 Reckoning& byDay, Reckoning& byNight) {
    if (hours.byDay.count() > 0)
        byDay = overtimePay(law, base, hours.percent, hours.byDay,
                            percentWords("Horas extras", hours.percent));
    if (hours.byNight.count() > 0)
        byNight = nightOvertimePay(law, base, hours.nightPercent, hours.byNight,
                                   percentWords("Horas extras noturnas", hours.nightPercent));
}

/// Súmula 264 and OJ 259: additions are part of the hour; whether pay for unhealthy work is part of
/// the night hour, the company says.
void reckonHours(const PayrollLaw& law, const MonthPayCase& month, const RiskPay& risk,
                 MonthEarnings& pay) {
    Money nightPay = month.salary + risk.danger.amount;
    if (law.settings.unhealthyPayIsInNightBase) nightPay = nightPay + risk.unhealthy.amount;
    if (month.nightHours.count() > 0)
        pay.night = nightPremium(law, {nightPay, month.divisor}, month.nightHours);
    Money extraPay = month.salary + risk.total();
    if (law.settings.nightPremiumIsInOvertimeBase) extraPay = extraPay + pay.night.amount;
    const HourBase base{extraPay, month.divisor};
    reckonExtra(law, base, month.minimum, pay.minimumOvertime, pay.minimumNightOvertime);
    reckonExtra(law, base, month.maximum, pay.maximumOvertime, pay.maximumNightOvertime);
    pay.restReflex =
        restReflex({pay.minimumOvertime.amount, pay.maximumOvertime.amount, pay.night.amount,
                    pay.minimumNightOvertime.amount, pay.maximumNightOvertime.amount},
                   month.days.businessDays, month.days.restDays);
}

Reckoning inssOf(const PayrollLaw& law, const MonthPayCase& month, Money base) {
    const Reckoning all = inss(law, base + month.vacationBase, month.part.month());
    if (month.vacationBase.cents == 0) return all;
    Reckoning rest = following(all.memo, Sum(all.amount)
                                             .minus(month.vacationInss)
                                             .rounded("INSS sem o que já se descontou nas férias"));
    rest.amount = atLeastZero(rest.amount);
    return rest;
}

IncomeTax taxOf(const PayrollLaw& law, const MonthPayCase& month, Money base,
                const MonthDeductions& pay, Money alimony) {
    return incomeTax(law, {.kind = TaxedIncome::Month,
                           .income = base,
                           .inss = pay.inss.amount,
                           .dependants = month.dependants,
                           .alimony = alimony,
                           .privatePension = month.privatePension,
                           .paid = month.paid});
}

/// The IRRF falls by the alimony and the alimony by the IRRF: from that without any tax downwards
/// both come to rest, since a real of alimony takes less than a real off the tax.
Reckoning alimonyOfNet(const PayrollLaw& law, const MonthPayCase& month, Money base,
                       const MonthDeductions& pay, Money fixed) {
    const auto after = [&](Money tax) {
        return Sum(base)
            .minus(pay.inss.amount)
            .minus(tax)
            .percent(month.alimonyOfNet)
            .rounded("Pensão alimentícia sobre o líquido");
    };
    Reckoning share = after({});
    for (;;) {
        Reckoning next = after(taxOf(law, month, base, pay, fixed + share.amount).withheld);
        if (next.amount >= share.amount) return next;
        share = std::move(next);
    }
}

Reckoning alimonyOf(const PayrollLaw& law, const MonthPayCase& month, Money base,
                    const MonthDeductions& pay) {
    Reckoning all;
    if (month.alimony.cents > 0) all = Sum(month.alimony).rounded("Pensão alimentícia");
    if (month.alimonyOfGross > Fraction(0))
        all = all +
              Sum(base).percent(month.alimonyOfGross).rounded("Pensão alimentícia sobre o bruto");
    if (month.alimonyOfNet > Fraction(0))
        all = all + alimonyOfNet(law, month, base, pay, all.amount);
    return all;
}

Reckoning partOf(const Reckoning& whole, const Fraction& share) {
    if (share == Fraction(1) || whole.amount.cents == 0) return whole;
    return following(whole.memo, Sum(whole.amount).times(share).rounded("Pelos dias do mês"));
}

}  // namespace

RiskPay wholeRiskPay(const PayrollLaw& law, const MonthPayCase& month) {
    Reckoning unhealthy;
    Reckoning danger;
    if (month.unhealthyPercent > Fraction(0))
        unhealthy = unhealthyPay(law, month.unhealthyPercent, month.salary, month.part.month());
    if (month.isDangerous) danger = dangerPay(month.salary);
    return betterRiskPay(std::move(unhealthy), std::move(danger));
}

MonthEarnings monthEarnings(const PayrollLaw& law, const MonthPayCase& month) {
    MonthEarnings pay;
    const Fraction share = shareOf(law, month);
    pay.salary = partialSalary(month.salary, month.part, law.settings.partialMonth);
    const RiskPay risk = wholeRiskPay(law, month);
    pay.risk = {partOf(risk.unhealthy, share), partOf(risk.danger, share)};
    reckonHours(law, month, risk, pay);
    const int byDelay = law.settings.delayLosesWeeklyRest ? month.restsLostByDelay : 0;
    pay.absences = daysLost(month.salary, month.absentDays, "Faltas");
    pay.restsLost = daysLost(month.salary, month.restsLost + byDelay, "DSR perdido");
    pay.missing = timeLost(law, {month.salary, month.divisor}, month.missing);
    return pay;
}

MonthDeductions monthDeductions(const PayrollLaw& law, const MonthPayCase& month, Money base) {
    MonthDeductions pay;
    const Fraction share = shareOf(law, month);
    pay.familyQuota =
        familyQuota(law, base + month.vacationBase, month.children, month.part.month(), share);
    pay.inss = inssOf(law, month, base);
    pay.advance = salaryAdvance(month.salary, month.advancePercent);
    pay.alimony = alimonyOf(law, month, base, pay);
    pay.tax = taxOf(law, month, base, pay, pay.alimony.amount);
    pay.voucher = transportVoucher(month.salary, month.voucherCost, month.voucherPercent,
                                   law.settings.voucherFollowsDaysWorked ? share : Fraction(1));
    return pay;
}

}  // namespace winvrx
