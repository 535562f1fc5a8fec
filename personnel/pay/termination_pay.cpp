#include "personnel/pay/termination_pay.h"

#include "personnel/pay/inss.h"
#include "personnel/pay/partial_month.h"
#include "personnel/pay/thirteenth.h"

namespace winvrx {

namespace {

constexpr int kDaysAMonth = 30;
constexpr int kMonthsAYear = 12;
constexpr int kUsualFine = 40;
constexpr int kHalfFine = 20;

bool isResignation(const TerminationCase& end) {
    return end.type == TerminationType::Resignation;
}

bool isMutual(const TerminationCase& end) {
    return end.type == TerminationType::MutualFault;
}

/// Half of the usual one by mutual fault and by agreement (Lei 8.036/1990, art. 18; CLT, 484-A).
int finePercent(const TerminationCase& end) {
    return isMutual(end) || end.type == TerminationType::Agreement ? kHalfFine : kUsualFine;
}

/// By mutual fault half of it is due (CLT, art. 484; Súmula 14 of the TST).
Reckoning halved(const TerminationCase& end, const Reckoning& whole) {
    if (!isMutual(end)) return whole;
    return following(whole.memo, Sum(whole.amount).over(2).rounded("Metade por culpa recíproca"));
}

int daysOfNoticePaid(const TerminationCase& end, const TerminationDates& dates) {
    if (isResignation(end)) return 0;
    const auto paid = std::chrono::sys_days(dates.noticeEnds.value) -
                      std::chrono::sys_days(dates.lastDayWorked.value);
    return static_cast<int>(paid.count());
}

Reckoning daysOfPay(const TerminationCase& end, int days, std::string words) {
    return Sum({end.salary, end.averages}).over(kDaysAMonth).times(days).rounded(std::move(words));
}

void reckonNotice(const TerminationCase& end, TerminationPay& pay) {
    pay.dates =
        end.dates ? *end.dates : terminationDates(end.type, end.notice, end.admission, end.given);
    if (const int days = daysOfNoticePaid(end, pay.dates); days > 0)
        pay.notice = daysOfPay(end, days, "Aviso prévio indenizado");
    if (!pay.notice.memo.empty()) pay.notice.memo.push_back({pay.dates.noticeDays.rule});
    if (isResignation(end) && end.notice == NoticeType::Paid)
        pay.noticeDeducted =
            daysOfPay(end, pay.dates.noticeDays.value, "Aviso prévio não cumprido");
}

void reckonBalance(const PayrollLaw& law, const TerminationCase& end, TerminationPay& pay) {
    const Date last = pay.dates.lastDayWorked.value;
    auto part = employedPart(monthOf(last), end.admission, last);
    if (!part) return;
    part->daysAway = end.daysAway;
    pay.balance = partialSalary(end.salary, *part, law.settings.partialMonth, "Saldo de salário");
}

/// Twelfths of the year of `last`, and of the next where the projected notice reaches it.
int twelfthsUntil(const TerminationCase& end, Date lastWorked, Date last) {
    int twelfths = thirteenthTwelfths(lastWorked.year(), end.admission, last, end.absentDays);
    if (last.year() > lastWorked.year())
        twelfths += thirteenthTwelfths(last.year(), end.admission, last);
    return twelfths;
}

void reckonThirteenth(const TerminationCase& end, TerminationPay& pay) {
    if (end.type == TerminationType::JustCause) return;
    pay.thirteenthTwelfths =
        twelfthsUntil(end, pay.dates.lastDayWorked.value, pay.dates.noticeEnds.value);
    pay.thirteenth = halved(
        end, thirteenthOf(end.salary, end.averages, pay.thirteenthTwelfths, "13º proporcional"));
}

/// Whole periods and the days left of others, with their third.
Reckoning overdueVacation(const TerminationCase& end) {
    const int count = end.overduePeriods + end.doubledPeriods;
    Reckoning pay;
    if (count > 0) pay = Sum({end.salary, end.averages}).times(count).rounded("Férias vencidas");
    if (end.doubledPeriods > 0)
        pay.memo.push_back(
            {"Em dobro (CLT, art. 137)", std::to_string(end.doubledPeriods) + " período(s)"});
    if (end.overdueDays > 0)
        pay = pay + daysOfPay(end, end.overdueDays, "Férias vencidas, dias restantes");
    if (pay.amount.cents == 0) return {};
    return pay + Sum(pay.amount).over(3).rounded("1/3 das férias vencidas");
}

void reckonVacation(const TerminationCase& end, TerminationPay& pay) {
    pay.overdue = overdueVacation(end);
    if (end.type == TerminationType::JustCause) return;
    const auto runs = runningPeriod(end.periods.value_or(AcquisitionCount{end.admission}),
                                    pay.dates.lastDayWorked.value);
    if (!runs) return;
    pay.vacationTwelfths = vacationTwelfths(runs->first, pay.dates.noticeEnds.value);
    const int days = vacationDays(end.absences);
    Sum sum = Sum({end.salary, end.averages}).over(kMonthsAYear).times(pay.vacationTwelfths);
    if (days != kDaysAMonth) sum = std::move(sum).times({days, kDaysAMonth});
    pay.vacation = halved(end, sum.rounded("Férias proporcionais"));
    pay.vacationThird = Sum(pay.vacation.amount).over(3).rounded("1/3 das férias proporcionais");
}

Money thirteenthForInss(const PayrollLaw& law, const TerminationCase& end,
                        const TerminationPay& pay) {
    if (law.settings.inssOnNoticeTwelfths || end.type == TerminationType::JustCause)
        return pay.thirteenth.amount;
    const Date last = pay.dates.lastDayWorked.value;
    return halved(end, thirteenthOf(end.salary, end.averages, twelfthsUntil(end, last, last)))
        .amount;
}

void reckonDeductions(const PayrollLaw& law, const TerminationCase& end, TerminationPay& pay) {
    const WorkMonth month = monthOf(pay.dates.lastDayWorked.value);
    const Date paid = end.paid.value_or(pay.dates.paymentDue.value);
    const Money notice = law.settings.inssOnPaidNotice ? pay.notice.amount : Money{};
    const Money income = atLeastZero(pay.balance.amount + end.monthsPay);
    pay.inssBalance = inss(law, income + notice, month, "INSS sobre o saldo");
    pay.inssThirteenth = inss(law, thirteenthForInss(law, end, pay), month, "INSS sobre o 13º");
    pay.taxBalance = incomeTax(law, {.kind = TaxedIncome::Month,
                                     .income = income,
                                     .inss = pay.inssBalance.amount,
                                     .dependants = end.dependants,
                                     .alimony = end.alimony,
                                     .privatePension = end.privatePension,
                                     .paid = paid});
    pay.taxThirteenth = incomeTax(law, {.kind = TaxedIncome::Thirteenth,
                                        .income = pay.thirteenth.amount,
                                        .inss = pay.inssThirteenth.amount,
                                        .dependants = end.dependants,
                                        .paid = paid});
}

void reckonFgts(const PayrollLaw& law, const TerminationCase& end, TerminationPay& pay) {
    const PaidBeforeTheEnd& paid = end.before;
    const Money thirteenth = paid.firstInstalment.fgtsBase + paid.secondInstalment.fgtsBase;
    pay.fgtsBase = atLeastZero(pay.balance.amount + end.monthsPay - paid.month.fgtsBase) +
                   pay.notice.amount + atLeastZero(pay.thirteenth.amount - thirteenth);
    pay.fgts = fgts(law, pay.fgtsBase, end.fgtsRate, "FGTS da rescisão");
    if (end.type == TerminationType::JustCause || isResignation(end)) return;
    if (law.settings.isDomesticEmployer)
        pay.fgtsFine.memo = {
            {"Sem multa: a reserva de 3,2% de cada mês fica no lugar dela (LC "
             "150/2015, art. 22)"}};
    else
        pay.fgtsFine = fgtsFine(end.fgtsAccount + pay.fgts.amount, finePercent(end));
}

Reckoning alreadyPaid(const PaidAlready& paid, std::string words) {
    return paid.net.cents == 0 ? Reckoning{} : Sum(paid.net).rounded(std::move(words));
}

void takeOffPaid(const PaidBeforeTheEnd& paid, TerminationPay& pay) {
    pay.firstPaid = alreadyPaid(paid.firstInstalment, "1ª parcela do 13º, já paga");
    pay.secondPaid = alreadyPaid(paid.secondInstalment, "2ª parcela do 13º, já paga");
    pay.monthPaid = alreadyPaid(paid.month, "Líquido da folha gravada do mês");
    pay.vacationsPaid = alreadyPaid(paid.vacations, "Líquido das férias gravadas na folha");
}

}  // namespace

TerminationPay terminationPay(const PayrollLaw& law, const TerminationCase& end) {
    TerminationPay pay;
    reckonNotice(end, pay);
    if (!end.dates && law.settings.paymentTerm == PaymentTerm::FromProjectedEnd)
        pay.dates.paymentDue = paymentDue(pay.dates.noticeEnds.value);
    reckonBalance(law, end, pay);
    reckonThirteenth(end, pay);
    reckonVacation(end, pay);
    reckonDeductions(law, end, pay);
    reckonFgts(law, end, pay);
    takeOffPaid(end.before, pay);
    pay.gross = pay.balance.amount + end.monthsPay + pay.notice.amount + pay.thirteenth.amount +
                pay.vacation.amount + pay.vacationThird.amount + pay.overdue.amount;
    pay.deductions = pay.noticeDeducted.amount + pay.firstPaid.amount + pay.secondPaid.amount +
                     pay.monthPaid.amount + pay.vacationsPaid.amount + pay.inssBalance.amount +
                     pay.inssThirteenth.amount + pay.taxBalance.withheld +
                     pay.taxThirteenth.withheld;
    pay.net = pay.gross - pay.deductions;
    return pay;
}

}  // namespace winvrx
