#include "personnel/vacation/vacation_pay.h"

#include "personnel/pay/inss.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kDaysAMonth = 30;

Reckoning daysPay(const VacationCase& vacation, int days, std::string words) {
    if (days <= 0) return {};
    return Sum({vacation.salary, vacation.averages})
        .over(kDaysAMonth)
        .times(days)
        .rounded(std::move(words));
}

Reckoning thirdOf(Money pay, std::string words) {
    if (pay.cents == 0) return {};
    return Sum(pay).over(3).rounded(std::move(words));
}

Reckoning doubledPay(const VacationCase& vacation) {
    if (vacation.doubledDays <= 0) return {};
    Reckoning pay = daysPay(vacation, vacation.doubledDays, "Dobra das férias");
    const Reckoning third = thirdOf(pay.amount, "1/3 sobre a dobra");
    append(pay.memo, third.memo);
    return {pay.amount + third.amount, pay.memo};
}

IncomeTax taxOf(const PayrollLaw& law, const VacationCase& vacation, const VacationPay& pay) {
    const Money doubled = law.settings.doubledVacationIsTaxed ? pay.doubled.amount : Money{};
    return incomeTax(law, {.kind = TaxedIncome::Vacation,
                           .income = pay.taxable + doubled,
                           .inss = pay.inss.amount,
                           .dependants = vacation.dependants,
                           .alimony = vacation.alimony,
                           .privatePension = vacation.privatePension,
                           .paid = vacation.paid,
                           .monthsIncome = vacation.monthsIncome});
}

}  // namespace

VacationPay vacationPay(const PayrollLaw& law, const VacationCase& vacation) {
    VacationPay pay;
    pay.vacation = daysPay(vacation, vacation.days, "Férias");
    pay.third = thirdOf(pay.vacation.amount, "1/3 de férias");
    pay.sold = daysPay(vacation, vacation.soldDays, "Abono pecuniário");
    pay.soldThird = thirdOf(pay.sold.amount, "1/3 do abono");
    pay.doubled = doubledPay(vacation);
    pay.taxable = pay.vacation.amount + pay.third.amount;
    pay.gross = pay.taxable + pay.sold.amount + pay.soldThird.amount + pay.doubled.amount;
    pay.inss = inss(law, pay.taxable, vacation.competence, "INSS sobre as férias");
    pay.tax = taxOf(law, vacation, pay);
    pay.fgts = fgts(law, pay.taxable, vacation.fgtsRate, "FGTS sobre as férias");
    pay.net = pay.gross - pay.inss.amount - pay.tax.withheld;
    return pay;
}

std::vector<VacationShare> sharesByMonth(Money pay, Date start, int days) {
    std::vector<VacationShare> shares;
    Money left = pay;
    int daysLeft = days;
    for (Date first = start; daysLeft > 0;) {
        const WorkMonth month = monthOf(first);
        const int here = std::min(daysLeft, daysIn(month) - dayNumber(first) + 1);
        const Money amount = Sum(left).over(daysLeft).times(here).rounded("").amount;
        shares.push_back({month, here, amount});
        left = left - amount;
        daysLeft -= here;
        first = plusDays(first, here);
    }
    return shares;
}

Reckoning vacationInss(const PayrollLaw& law, Money taxable, Date start, int days) {
    Reckoning sum;
    for (const VacationShare& share : sharesByMonth(taxable, start, days)) {
        const Reckoning one = inss(law, share.amount, share.month,
                                   "INSS sobre as férias em " + monthKey(share.month));
        sum.amount = sum.amount + one.amount;
        append(sum.memo, one.memo);
    }
    return sum;
}

}  // namespace winvrx
