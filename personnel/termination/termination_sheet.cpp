#include "personnel/termination/termination_sheet.h"

#include "foundation/values/text.h"
#include "personnel/pay/partial_month.h"
#include "personnel/pay/vacation_rules.h"

#include <algorithm>

namespace winvrx {

namespace {

/// Of the last month's sheet, what the termination works out by itself.
constexpr std::array<std::string_view, 3> kWorkedOut = {"001", "091", "092"};

std::string twelfthsText(int twelfths) {
    return std::to_string(twelfths) + "/12";
}

/// The last month with what its events say.
MonthPayCase lastMonthOf(const PayrollLaw& law, const TerminationInputs& inputs) {
    const Date last = inputs.record.dates.lastDayWorked.value;
    const Date paid = inputs.record.dates.paymentDue.value;
    auto month = monthCase(law, inputs.lastMonth, paid);
    const auto part = employedPart(monthOf(last), inputs.record.admission, last);
    if (!month || !part)
        throw Fault("no day of the contract in its last month",
                    "O contrato não tem dias em " + monthTitle(monthOf(last)) + ".");
    month->part = *part;
    month->part.daysAway = daysAwayUnpaid(inputs.lastMonth.leaves, *part);
    return *month;
}

Reckoning averagesOf(const PayrollLaw& law, const TerminationInputs& inputs,
                     const MonthPayCase& month) {
    if (const auto said = inputs.lastMonth.facts.averages)
        return Sum(*said).rounded("Média mensal de variáveis, de Dados para a Folha");
    return variablePayAverage(law, month, inputs.history.recorded);
}

int absencesInRunningPeriod(const TerminationInputs& inputs) {
    const auto runs = runningPeriod(inputs.periods, inputs.record.dates.lastDayWorked.value);
    return static_cast<int>(std::ranges::count_if(
        inputs.history.absences, [&](Date date) { return runs && date >= runs->first; }));
}

TerminationCase caseOf(const PayrollLaw& law, const TerminationInputs& inputs,
                       const MonthPayCase& month, const PaySheet& sheet, Money averages) {
    const TerminationRecord& record = inputs.record;
    const Money risk = wholeRiskPay(law, month).total();
    TerminationCase end{.type = record.type,
                        .notice = record.notice,
                        .admission = record.admission,
                        .given = record.dates.noticeGiven.value,
                        .dates = record.dates,
                        .salary = month.salary};
    end.averages = averages + risk;
    end.monthsPay = sheet.base - sheet.amountOf("001");
    end.daysAway = month.part.daysAway;
    end.before = inputs.paid;
    end.periods = inputs.periods;
    end.absentDays = inputs.history.absences;
    end.overduePeriods = inputs.overduePeriods;
    end.doubledPeriods = inputs.doubledPeriods;
    end.overdueDays = inputs.overdueDays;
    end.absences = absencesInRunningPeriod(inputs);
    end.fgtsAccount = inputs.lastMonth.facts.fgtsAccount;
    end.dependants = month.dependants;
    end.alimony = sheet.amountOf("097");
    end.privatePension = month.privatePension;
    end.fgtsRate = month.fgtsRate;
    return end;
}

using Lines = std::vector<TerminationLine>;

/// Nothing for an amount of nothing.
void add(Lines& lines, std::string words, std::string quantity, const Reckoning& reckoning) {
    if (reckoning.amount.cents == 0) return;
    lines.push_back({std::move(words), std::move(quantity), reckoning.amount, reckoning.memo});
}

/// What the last month's sheet earns or takes off beside the salary.
void addMonth(Lines& lines, const PaySheet& lastMonth, bool earnings) {
    for (const PayLine& line : lastMonth.lines)
        if (line.event.isEarning() == earnings &&
            std::ranges::find(kWorkedOut, line.event.code) == kWorkedOut.end())
            add(lines, line.event.name, {}, {line.amount, line.memo});
}

std::string overdueText(const TerminationInputs& inputs) {
    const auto textOf = [](int count, std::string_view what) {
        return count > 0 ? countOf(count, what) : std::string();
    };
    return joined({textOf(inputs.overduePeriods, "período"), textOf(inputs.overdueDays, "dia")},
                  " e ");
}

Lines creditsOf(const TerminationPay& pay, const TerminationInputs& inputs,
                const MonthPayCase& month, const PaySheet& lastMonth) {
    const TerminationDates& dates = pay.dates;
    Lines lines;
    add(lines, "Saldo de salário", countOf(month.part.calendarDays(), "dia"), pay.balance);
    addMonth(lines, lastMonth, true);
    add(lines, "Aviso prévio indenizado",
        countOf(daysBetween(dates.lastDayWorked.value, dates.noticeEnds.value), "dia"), pay.notice);
    add(lines, "13º salário proporcional", twelfthsText(pay.thirteenthTwelfths), pay.thirteenth);
    add(lines, "Férias vencidas, com 1/3", overdueText(inputs), pay.overdue);
    add(lines, "Férias proporcionais", twelfthsText(pay.vacationTwelfths), pay.vacation);
    add(lines, "1/3 das férias proporcionais", {}, pay.vacationThird);
    return lines;
}

Lines debitsOf(const TerminationPay& pay, const PaySheet& lastMonth) {
    const std::string month = monthTitle(monthOf(pay.dates.lastDayWorked.value));
    Lines lines;
    addMonth(lines, lastMonth, false);
    add(lines, "Aviso prévio não cumprido", countOf(pay.dates.noticeDays.value, "dia"),
        pay.noticeDeducted);
    add(lines, "1ª parcela do 13º salário", {}, pay.firstPaid);
    add(lines, "2ª parcela do 13º salário", {}, pay.secondPaid);
    add(lines, "Já pago na folha de " + month, {}, pay.monthPaid);
    add(lines, "Férias já pagas e não gozadas", {}, pay.vacationsPaid);
    add(lines, "INSS", {}, pay.inssBalance);
    add(lines, "INSS sobre o 13º salário", {}, pay.inssThirteenth);
    add(lines, "IRRF", {}, {pay.taxBalance.withheld, pay.taxBalance.memo});
    add(lines, "IRRF sobre o 13º salário", {},
        {pay.taxThirteenth.withheld, pay.taxThirteenth.memo});
    return lines;
}

Money sumOf(const std::vector<TerminationLine>& lines) {
    Money sum;
    for (const TerminationLine& line : lines)
        sum = sum + line.amount;
    return sum;
}

void addRemarks(const PayrollLaw& law, const TerminationInputs& inputs, TerminationSheet& sheet) {
    const PayrollFacts& facts = inputs.lastMonth.facts;
    const Date last = inputs.record.dates.lastDayWorked.value;
    if (!inputs.lastMonth.hours)
        sheet.remarks.push_back("Não há cartão de ponto em " + monthTitle(monthOf(last)) +
                                ": horas extras e faltas do mês não estão no cálculo.");
    if (inputs.paid.month.fgtsBase.cents > 0)
        sheet.remarks.push_back("A folha de " + monthTitle(monthOf(last)) +
                                " está gravada: o líquido dela é descontado, e o FGTS dela não "
                                "está neste depósito.");
    if (sheet.pay.fgtsFine.amount.cents > 0 && facts.fgtsAccount.cents == 0)
        sheet.remarks.push_back(
            "O saldo do FGTS não está em Dados para a Folha: a multa é só "
            "sobre o depósito da rescisão.");
    for (const MemoLine& line : sheet.pay.fgtsFine.memo)
        if (line.figures.empty()) sheet.remarks.push_back(line.words + ".");
    const Date due = sheet.record.dates.paymentDue.value;
    for (std::string& warning : law.tables.warnings(monthOf(last), due))
        sheet.remarks.push_back(std::move(warning));
}

}  // namespace

TerminationSheet terminationSheet(const PayrollLaw& law, const TerminationInputs& inputs) {
    if (!salaryOf(inputs.lastMonth.employee))
        throw Fault("no salary", "O cadastro do funcionário não tem o valor do salário.");
    const MonthPayCase month = withReferences(lastMonthOf(law, inputs), inputs.events);
    const Reckoning averages = averagesOf(law, inputs, month);
    const PaySheet lastMonth = paySheet(law, {.month = month}, inputs.events, inputs.typed);
    TerminationSheet sheet{
        .record = inputs.record,
        .employee = inputs.lastMonth.employee,
        .salary = month.salary,
        .pay = terminationPay(law, caseOf(law, inputs, month, lastMonth, averages.amount))};
    for (Reckoning* line : {&sheet.pay.notice, &sheet.pay.thirteenth, &sheet.pay.vacation})
        if (line->amount.cents > 0) append(line->memo, averages.memo);
    sheet.credits = creditsOf(sheet.pay, inputs, month, lastMonth);
    sheet.debits = debitsOf(sheet.pay, lastMonth);
    add(sheet.deposits, "FGTS da rescisão", {}, sheet.pay.fgts);
    add(sheet.deposits, "Multa do FGTS", {}, sheet.pay.fgtsFine);
    sheet.gross = sumOf(sheet.credits);
    sheet.deductions = sumOf(sheet.debits);
    sheet.net = sheet.gross - sheet.deductions;
    addRemarks(law, inputs, sheet);
    return sheet;
}

}  // namespace winvrx
