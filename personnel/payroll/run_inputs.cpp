#include "personnel/payroll/run_inputs.h"

#include "personnel/pay/inss.h"
#include "personnel/pay/thirteenth.h"
#include "personnel/payroll/pay_sheet.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/vacation/vacation_pay.h"
#include "personnel/vacation/vacation_periods.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr bool isThirteenth(PayrollRun run) {
    return run == PayrollRun::ThirteenthFirst || run == PayrollRun::ThirteenthSecond;
}

Date firstOfYear(WorkMonth month) {
    return month.year() / std::chrono::January / 1;
}

Date lastOfYear(WorkMonth month) {
    return month.year() / std::chrono::December / 31;
}

/// The first instalment looks ahead to the whole year; whether the company pays that, or half of
/// the twelfths that are full so far, its setting says.
ThirteenthSheet thirteenthSheet(const PayrollLaw& law, const EmployeeMonth& of,
                                const RunInputs& inputs, const MonthPayCase& month) {
    const WorkMonth when = of.settings.month;
    const Date admission = of.employee.admissionDate().value_or(firstOfYear(when));
    const Date end = std::min(of.leaves.contractEnd().value_or(lastOfYear(when)), lastOfYear(when));
    const auto twelfthsTo = [&](Date last) {
        return thirteenthTwelfths(when.year(), admission, last, inputs.history.absences);
    };
    const bool isFirst = inputs.run == PayrollRun::ThirteenthFirst;
    return {.instalment = isFirst ? Instalment::First : Instalment::Second,
            .twelfths = twelfthsTo(end),
            .twelfthsSoFar = twelfthsTo(std::min(end, lastDay(when))),
            .averages = variablePayAverage(law, month, inputs.history.recorded),
            .firstPaid = inputs.firstPaid.value_or(Money{}),
            .paid = month.paid};
}

VacationSheet vacationSheet(const PayrollLaw& law, const EmployeeMonth& of, const RunInputs& inputs,
                            const MonthPayCase& month) {
    const VacationItem& item = inputs.vacation.value();
    const LeavePeriod away = item.away().value();
    const auto period = periodOf(of.employee.admissionDate(), item);
    const bool isTogether = law.settings.vacationReduction == VacationReduction::WithMonth;
    return {.start = away.first,
            .days = item.days(),
            .soldDays = item.soldDays(),
            .doubledDays = daysPastLimit(period, away.first, item.days()),
            .averages = variablePayAverage(law, month, inputs.history.recorded),
            .paid = vacationPaymentDue(away.first),
            .monthsIncome = isTogether ? month.salary : Money{}};
}

/// What the month's INSS takes of vacations: the pay of their days in it, and what was withheld of
/// that. The last month of a vacation has what the months before left of its INSS.
void takePaid(const PayrollLaw& law, const std::vector<PaidVacation>& vacations,
              MonthPayCase& month) {
    for (const PaidVacation& one : vacations) {
        Money left = one.inss;
        const auto shares = sharesByMonth(one.taxable, one.away.first, one.days);
        for (const VacationShare& share : shares) {
            Money withheld = left;
            if (share.month != shares.back().month)
                withheld = std::min(left, inss(law, share.amount, share.month, "").amount);
            left = left - withheld;
            if (share.month != month.part.month()) continue;
            month.vacationBase = month.vacationBase + share.amount;
            month.vacationInss = month.vacationInss + withheld;
        }
    }
}

std::vector<PaidVacation> paidIn(const Store& store, const EmployeeKey& key, WorkMonth month,
                                 const VacationLines& lines, const FolderNames& names) {
    std::vector<PaidVacation> paid;
    for (const VacationLine& line : lines) {
        const auto away = line.record.away();
        const auto when = line.record.workMonth();
        if (!line.key() || !away || !away->touches(month) ||
            !names.contains(payrollFileName(key, *when, PayrollRun::Vacation)))
            continue;
        if (const auto recorded = loadPayroll(store, key, *when, PayrollRun::Vacation))
            paid.push_back({*away, line.record.days(),
                            taxedPay(recorded->sheet, PayrollKind::Vacation),
                            recorded->sheet.amountOf("093")});
    }
    return paid;
}

void loadThirteenth(const Store& store, const CompanyCode& company, const EmployeeMonth& of,
                    SettingsByMonth& settings, const FolderNames& names, RunInputs& inputs) {
    const WorkMonth month = of.settings.month;
    inputs.history = loadCardHistory(store, company, of.employee,
                                     {firstOfYear(month), lastDay(month)}, settings, names);
    if (inputs.run == PayrollRun::ThirteenthFirst) return;
    const EmployeeKey key{company, of.employee.employeeCode().value()};
    if (const auto first = recordedInYear(key, PayrollRun::ThirteenthFirst, month, names))
        if (const auto paid = loadPayroll(store, key, *first, PayrollRun::ThirteenthFirst))
            inputs.firstPaid = paid->sheet.net;
}

void loadVacation(const Store& store, const CompanyCode& company, const EmployeeMonth& of,
                  SettingsByMonth& settings, const FolderNames& names, RunInputs& inputs) {
    const EmployeeKey key{company, of.employee.employeeCode().value()};
    const VacationLines lines = loadVacations(store, key, names);
    if (inputs.run == PayrollRun::Month) {
        inputs.paid = paidIn(store, key, of.settings.month, lines, names);
        return;
    }
    const VacationItem* item = vacationOf(lines, of.settings.month);
    if (item == nullptr) return;
    inputs.vacation = *item;
    const AcquisitionPeriod period = periodOf(of.employee.admissionDate(), *item);
    inputs.history =
        loadCardHistory(store, company, of.employee, {period.first, period.last}, settings, names);
}

}  // namespace

RunInputs loadRunInputs(const Store& store, const CompanyCode& company, const EmployeeMonth& of,
                        PayrollRun run, SettingsByMonth& settings, const FolderNames& names) {
    RunInputs inputs{.run = run};
    if (isThirteenth(run))
        loadThirteenth(store, company, of, settings, names, inputs);
    else
        loadVacation(store, company, of, settings, names, inputs);
    return inputs;
}

std::optional<WorkMonth> recordedInYear(const EmployeeKey& key, PayrollRun run, WorkMonth month,
                                        const FolderNames& names) {
    std::optional<WorkMonth> found;
    for (const WorkMonth one : recordedMonths(key, names, run))
        if (one.year() == month.year()) found = one;
    return found;
}

Date paymentDay(PayrollRun run, WorkMonth month) {
    if (run != PayrollRun::ThirteenthSecond || month.month() != std::chrono::December)
        return lastDay(month);
    return secondInstalmentDue(month.year());
}

std::optional<PaySheetCase> runCase(const PayrollLaw& law, const EmployeeMonth& of,
                                    const RunInputs& inputs, const PayrollEvents& events) {
    auto month = monthCase(law, of, paymentDay(inputs.run, of.settings.month));
    if (!month) return std::nullopt;
    PaySheetCase one{.month = *std::move(month), .hasMonth = inputs.run == PayrollRun::Month};
    takePaid(law, inputs.paid, one.month);
    const MonthPayCase referenced = withReferences(one.month, events);
    if (isThirteenth(inputs.run)) one.thirteenth = thirteenthSheet(law, of, inputs, referenced);
    if (inputs.vacation) one.vacation = vacationSheet(law, of, inputs, referenced);
    return one;
}

}  // namespace winvrx
