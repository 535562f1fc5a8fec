#include "personnel/pay/thirteenth.h"

#include "personnel/pay/inss.h"
#include "personnel/pay/partial_month.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kMonthsAYear = 12;
constexpr int kDaysThatCount = 15;

Reckoning firstInstalment(const PayrollLaw& law, const ThirteenthCase& year) {
    const bool isSoFar = law.settings.firstInstalment == FirstInstalment::TwelfthsSoFar;
    const int twelfths = isSoFar ? year.twelfthsSoFar.value_or(year.twelfths) : year.twelfths;
    Reckoning whole = thirteenthOf(year.salary, year.averages, twelfths);
    const Reckoning half = Sum(whole.amount).over(2).rounded("1ª parcela do 13º");
    append(whole.memo, half.memo);
    return {half.amount, whole.memo};
}

}  // namespace

int thirteenthTwelfths(std::chrono::year year, Date admission, Date end,
                       const std::vector<Date>& absences) {
    int twelfths = 0;
    for (unsigned number = 1; number <= kMonthsAYear; ++number) {
        const WorkMonth month = year / std::chrono::month{number};
        const auto part = employedPart(month, admission, end);
        if (!part) continue;
        const auto absent = std::ranges::count_if(
            absences, [&](Date date) { return part->first <= date && date <= part->last; });
        if (part->calendarDays() - absent >= kDaysThatCount) ++twelfths;
    }
    return twelfths;
}

Reckoning thirteenthOf(Money salary, Money averages, int twelfths, std::string words) {
    return Sum({salary, averages}).over(kMonthsAYear).times(twelfths).rounded(std::move(words));
}

Thirteenth thirteenth(const PayrollLaw& law, const ThirteenthCase& year) {
    Thirteenth result;
    result.total = thirteenthOf(year.salary, year.averages, year.twelfths);
    result.first = firstInstalment(law, year);
    const Money total = result.total.amount;
    result.inss = inss(law, total, monthOf(year.paid), "INSS sobre o 13º");
    result.tax = incomeTax(law, {.kind = TaxedIncome::Thirteenth,
                                 .income = total,
                                 .inss = result.inss.amount,
                                 .dependants = year.dependants,
                                 .alimony = year.alimony,
                                 .privatePension = year.privatePension,
                                 .paid = year.paid});
    result.second = Sum(total)
                        .minus(result.first.amount)
                        .minus(result.inss.amount)
                        .minus(result.tax.withheld)
                        .rounded("Líquido da 2ª parcela");
    result.fgtsFirst = fgts(law, result.first.amount, year.fgtsRate, "FGTS da 1ª parcela");
    result.fgtsSecond = fgts(law, total - result.first.amount, year.fgtsRate, "FGTS da 2ª parcela");
    return result;
}

Date firstInstalmentDue(std::chrono::year year) {
    return year / std::chrono::November / 30;
}

Date secondInstalmentDue(std::chrono::year year) {
    return year / std::chrono::December / 20;
}

}  // namespace winvrx
