#include "personnel/payroll/special_sheets.h"

#include "personnel/pay/inss.h"
#include "personnel/pay/thirteenth.h"

namespace winvrx {

namespace {

constexpr int kDaysAMonth = 30;

Reckoning daysOf(Money monthly, int days, std::string words) {
    if (monthly.cents == 0 || days <= 0) return {};
    return Sum(monthly).over(kDaysAMonth).times(days).rounded(std::move(words));
}

Reckoning thirdOf(Money pay, std::string words) {
    if (pay.cents == 0) return {};
    return Sum(pay).over(3).rounded(std::move(words));
}

/// Everything that a day of vacation is paid by.
Money monthlyPay(const VacationSheet& vacation, const RiskPay& risk) {
    return vacation.pay.salary + risk.total() + vacation.pay.averages;
}

void addExtras(const VacationSheet& vacation, Money monthly, Reckonings& events) {
    events["034"] = daysOf(monthly, vacation.pay.soldDays, "Abono pecuniário");
    events["035"] = thirdOf(events["034"].amount, "1/3 do abono");
    Reckoning doubled = daysOf(monthly, vacation.pay.doubledDays, "Dobra das férias");
    const Reckoning third = thirdOf(doubled.amount, "1/3 sobre a dobra");
    append(doubled.memo, third.memo);
    events["036"] = {doubled.amount + third.amount, doubled.memo};
}

Money doubledIncome(const PayrollLaw& law, const VacationSheet& vacation, const RiskPay& risk) {
    if (!law.settings.doubledVacationIsTaxed) return {};
    Reckonings events;
    addExtras(vacation, monthlyPay(vacation, risk), events);
    return events["036"].amount;
}

Reckoning twelfthsOf(Money monthly, int twelfths, std::string words) {
    if (monthly.cents == 0) return {};
    return thirteenthOf(monthly, {}, twelfths, std::move(words));
}

Reckoning halfOf(Money monthly, int twelfths, const std::string& words) {
    Reckoning whole = twelfthsOf(monthly, twelfths, words);
    if (whole.amount.cents == 0) return {};
    const Reckoning half = Sum(whole.amount).over(2).rounded("Metade");
    append(whole.memo, half.memo);
    return {half.amount, whole.memo};
}

/// With the explanation of the averages before their line.
Reckoning explained(const Memo& averages, const Reckoning& line) {
    if (line.amount.cents == 0) return line;
    Reckoning whole{line.amount, averages};
    append(whole.memo, line.memo);
    return whole;
}

}  // namespace

Reckonings vacationEarnings(const PayrollLaw& law, const MonthPayCase& month,
                            const VacationSheet& vacation) {
    const RiskPay risk = wholeRiskPay(law, month);
    const int days = vacation.pay.days;
    Reckonings events;
    events["011"] = daysOf(vacation.pay.salary, days, "Férias");
    events["012"] = daysOf(risk.unhealthy.amount, days, "Insalubridade das férias");
    events["015"] =
        explained(vacation.averagesMemo, daysOf(vacation.pay.averages, days, "Médias das férias"));
    events["016"] = daysOf(risk.danger.amount, days, "Periculosidade das férias");
    events["013"] = thirdOf(events["012"].amount, "1/3 da insalubridade");
    events["014"] = thirdOf(events["011"].amount + events["015"].amount + events["016"].amount,
                            "1/3 de férias");
    addExtras(vacation, monthlyPay(vacation, risk), events);
    return events;
}

Reckonings vacationDeductions(const PayrollLaw& law, const MonthPayCase& month,
                              const VacationSheet& vacation, Money taxable) {
    const Reckoning contribution = vacationInss(law, taxable, vacation.start, vacation.pay.days);
    const RiskPay risk = wholeRiskPay(law, month);
    const IncomeTax tax = incomeTax(law, {.kind = TaxedIncome::Vacation,
                                          .income = taxable + doubledIncome(law, vacation, risk),
                                          .inss = contribution.amount,
                                          .dependants = month.dependants,
                                          .alimony = vacation.pay.alimony,
                                          .privatePension = vacation.pay.privatePension,
                                          .paid = vacation.pay.paid,
                                          .monthsIncome = vacation.pay.monthsIncome});
    return {{"093", contribution}, {"094", {tax.withheld, tax.memo}}};
}

Reckonings thirteenthEarnings(const PayrollLaw& law, const MonthPayCase& month,
                              const ThirteenthSheet& year) {
    const RiskPay risk = wholeRiskPay(law, month);
    const Money unhealthy = risk.unhealthy.amount;
    if (year.instalment == Instalment::Second)
        return {{"017", thirteenthOf(month.salary, risk.danger.amount, year.twelfths)},
                {"020", twelfthsOf(unhealthy, year.twelfths, "Insalubridade no 13º")},
                {"022", explained(year.averagesMemo,
                                  twelfthsOf(year.averages, year.twelfths, "Médias no 13º"))}};
    const bool isSoFar = law.settings.firstInstalment == FirstInstalment::TwelfthsSoFar;
    const int twelfths = isSoFar ? year.twelfthsSoFar.value_or(year.twelfths) : year.twelfths;
    return {{"019", halfOf(month.salary, twelfths, "13º salário")},
            {"018", halfOf(unhealthy, twelfths, "Insalubridade no 13º")},
            {"021", explained(year.averagesMemo, halfOf(year.averages, twelfths, "Médias no 13º"))},
            {"033", halfOf(risk.danger.amount, twelfths, "Periculosidade no 13º")}};
}

Reckonings thirteenthDeductions(const PayrollLaw& law, const MonthPayCase& month,
                                const ThirteenthSheet& year, Money total) {
    const Reckoning contribution = inss(law, total, monthOf(year.paid), "INSS sobre o 13º");
    const IncomeTax tax = incomeTax(law, {.kind = TaxedIncome::Thirteenth,
                                          .income = total,
                                          .inss = contribution.amount,
                                          .dependants = month.dependants,
                                          .alimony = month.alimony,
                                          .privatePension = month.privatePension,
                                          .paid = year.paid});
    return {{"095", contribution},
            {"096", {tax.withheld, tax.memo}},
            {"032", Sum(year.firstPaid).rounded("1ª parcela, já paga")}};
}

}  // namespace winvrx
