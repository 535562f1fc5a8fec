#include "personnel/vacation/vacation_pay.h"

#include "personnel/pay/inss.h"

#include <algorithm>

namespace winvrx {

std::vector<VacationShare> sharesByMonth(Money pay, Date start, int days) {
    std::vector<VacationShare> shares;
    Money left = pay;
    int daysLeft = days;
    for (Date first = start; daysLeft > 0;) {
        const WorkMonth month = monthOf(first);
        const int here = std::min(daysLeft, daysIn(month) - dayNumber(first) + 1);
        const Money amount = Sum(left).over(daysLeft).times(here).rounded("").amount;
        shares.push_back({month, amount});
        left = left - amount;
        daysLeft -= here;
        first = plusDays(first, here);
    }
    return shares;
}

Reckoning vacationInss(const PayrollLaw& law, Money taxable, Date start, int days) {
    Reckoning sum;
    for (const VacationShare& share : sharesByMonth(taxable, start, days))
        sum = sum + inss(law, share.amount, share.month,
                         "INSS sobre as férias em " + monthKey(share.month));
    return sum;
}

}  // namespace winvrx
