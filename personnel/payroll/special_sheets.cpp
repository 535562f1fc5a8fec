#include "personnel/payroll/special_sheets.h"

#include "personnel/pay/inss.h"
#include "personnel/pay/thirteenth.h"
#include "personnel/vacation/vacation_pay.h"

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

/// Days of vacation, paid by all that the month is paid by.
Reckoning allOf(const MonthPayCase& month, const VacationSheet& vacation, const RiskPay& risk,
                int days, std::string words) {
    return daysOf(month.salary + risk.total() + vacation.averages.amount, days, std::move(words));
}

Reckoning doubledPay(const MonthPayCase& month, const VacationSheet& vacation,
                     const RiskPay& risk) {
    const Reckoning doubled =
        allOf(month, vacation, risk, vacation.doubledDays, "Dobra das férias");
    return doubled + thirdOf(doubled.amount, "1/3 sobre a dobra");
}

Reckoning twelfthsOf(Money monthly, int twelfths, std::string words) {
    if (monthly.cents == 0) return {};
    return thirteenthOf(monthly, {}, twelfths, std::move(words));
}

Reckoning halfOf(Money monthly, int twelfths, const std::string& words) {
    const Reckoning whole = twelfthsOf(monthly, twelfths, words);
    if (whole.amount.cents == 0) return {};
    return following(whole.memo, Sum(whole.amount).over(2).rounded("Metade"));
}

/// With the explanation of the averages before their line.
Reckoning explained(const Reckoning& averages, const Reckoning& line) {
    return line.amount.cents == 0 ? line : following(averages.memo, line);
}

}  // namespace

Reckonings vacationEarnings(const PayrollLaw& law, const MonthPayCase& month,
                            const VacationSheet& vacation) {
    const RiskPay risk = wholeRiskPay(law, month);
    const int days = vacation.days;
    Reckonings events;
    events["011"] = daysOf(month.salary, days, "Férias");
    events["012"] = daysOf(risk.unhealthy.amount, days, "Insalubridade das férias");
    events["015"] =
        explained(vacation.averages, daysOf(vacation.averages.amount, days, "Médias das férias"));
    events["016"] = daysOf(risk.danger.amount, days, "Periculosidade das férias");
    events["013"] = thirdOf(events["012"].amount, "1/3 da insalubridade");
    events["014"] = thirdOf(events["011"].amount + events["015"].amount + events["016"].amount,
                            "1/3 de férias");
    events["034"] = allOf(month, vacation, risk, vacation.soldDays, "Abono pecuniário");
    events["035"] = thirdOf(events["034"].amount, "1/3 do abono");
    events["036"] = doubledPay(month, vacation, risk);
    return events;
}

Reckonings vacationDeductions(const PayrollLaw& law, const MonthPayCase& month,
                              const VacationSheet& vacation, Money taxable) {
    const Reckoning contribution = vacationInss(law, taxable, vacation.start, vacation.days);
    Money income = taxable;
    if (law.settings.doubledVacationIsTaxed)
        income = income + doubledPay(month, vacation, wholeRiskPay(law, month)).amount;
    const IncomeTax tax = incomeTax(law, {.kind = TaxedIncome::Vacation,
                                          .income = income,
                                          .inss = contribution.amount,
                                          .dependants = month.dependants,
                                          .paid = vacation.paid,
                                          .monthsIncome = vacation.monthsIncome});
    return {{"093", contribution}, {"094", {tax.withheld, tax.memo}}};
}

Reckonings thirteenthEarnings(const PayrollLaw& law, const MonthPayCase& month,
                              const ThirteenthSheet& year) {
    const RiskPay risk = wholeRiskPay(law, month);
    const Money unhealthy = risk.unhealthy.amount;
    if (year.instalment == Instalment::Second)
        return {{"017", thirteenthOf(month.salary, risk.danger.amount, year.twelfths)},
                {"020", twelfthsOf(unhealthy, year.twelfths, "Insalubridade no 13º")},
                {"022", explained(year.averages, twelfthsOf(year.averages.amount, year.twelfths,
                                                            "Médias no 13º"))}};
    const bool isSoFar = law.settings.firstInstalment == FirstInstalment::TwelfthsSoFar;
    const int twelfths = isSoFar ? year.twelfthsSoFar.value_or(year.twelfths) : year.twelfths;
    return {
        {"019", halfOf(month.salary, twelfths, "13º salário")},
        {"018", halfOf(unhealthy, twelfths, "Insalubridade no 13º")},
        {"021", explained(year.averages, halfOf(year.averages.amount, twelfths, "Médias no 13º"))},
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
