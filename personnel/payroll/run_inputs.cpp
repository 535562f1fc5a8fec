#include "personnel/payroll/run_inputs.h"

#include "personnel/pay/thirteenth.h"
#include "personnel/payroll/pay_sheet.h"
#include "personnel/payroll/payroll_record.h"

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
    const Reckoning averages = variablePayAverage(law, month, inputs.history.recorded);
    const bool isFirst = inputs.run == PayrollRun::ThirteenthFirst;
    return {.instalment = isFirst ? Instalment::First : Instalment::Second,
            .twelfths = twelfthsTo(end),
            .twelfthsSoFar = twelfthsTo(std::min(end, lastDay(when))),
            .averages = averages.amount,
            .firstPaid = inputs.firstPaid.value_or(Money{}),
            .paid = month.paid,
            .averagesMemo = averages.memo};
}

}  // namespace

RunInputs loadRunInputs(const Store& store, const CompanyCode& company, const EmployeeMonth& of,
                        PayrollRun run, SettingsByMonth& settings, const FolderNames& names) {
    RunInputs inputs{.run = run};
    if (!isThirteenth(run)) return inputs;
    const WorkMonth month = of.settings.month;
    const EmployeeKey key{company, of.employee.employeeCode().value()};
    inputs.history = loadCardHistory(store, company, of.employee,
                                     {firstOfYear(month), lastDay(month)}, settings, names);
    if (run == PayrollRun::ThirteenthFirst) return inputs;
    if (const auto first = recordedInYear(key, PayrollRun::ThirteenthFirst, month, names))
        if (const auto paid = loadPayroll(store, key, *first, PayrollRun::ThirteenthFirst))
            inputs.firstPaid = paid->sheet.net;
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
    if (isThirteenth(inputs.run))
        one.thirteenth = thirteenthSheet(law, of, inputs, withReferences(one.month, events));
    return one;
}

}  // namespace winvrx
