#include "personnel/payroll/contract_end.h"

#include "personnel/payroll/payroll_record.h"

namespace winvrx {

namespace {

void add(const Store& store, const EmployeeKey& key, std::optional<WorkMonth> month, PayrollRun run,
         PaidAlready& paid) {
    const auto recorded = month ? loadPayroll(store, key, *month, run) : std::nullopt;
    if (!recorded) return;
    paid.net = paid.net + recorded->sheet.net;
    paid.fgtsBase = paid.fgtsBase + recorded->sheet.fgtsBase;
}

}  // namespace

PaidBeforeTheEnd paidBeforeTheEnd(const Store& store, const EmployeeKey& key, Date last,
                                  const FolderNames& names) {
    PaidBeforeTheEnd paid;
    const WorkMonth month = monthOf(last);
    add(store, key, month, PayrollRun::Month, paid.month);
    constexpr auto kFirst = PayrollRun::ThirteenthFirst;
    constexpr auto kSecond = PayrollRun::ThirteenthSecond;
    add(store, key, recordedInYear(key, kFirst, month, names), kFirst, paid.firstInstalment);
    add(store, key, recordedInYear(key, kSecond, month, names), kSecond, paid.secondInstalment);
    for (const VacationLine& line : loadVacations(store, key, names))
        if (const auto away = line.record.away(); line.key() && away && away->first > last)
            add(store, key, line.record.workMonth(), PayrollRun::Vacation, paid.vacations);
    return paid;
}

std::optional<Date> endThatPays(const EmployeeMonth& of, const RunInputs& inputs) {
    const auto end = of.leaves.contractEnd();
    if (!end) return std::nullopt;
    const WorkMonth month = of.settings.month;
    switch (inputs.run) {
        case PayrollRun::Month:
            return monthOf(*end) == month ? end : std::nullopt;
        case PayrollRun::ThirteenthFirst:
        case PayrollRun::ThirteenthSecond:
            return end->year() == month.year() && monthOf(*end) <= month ? end : std::nullopt;
        case PayrollRun::Vacation:
            return inputs.vacation && inputs.vacation->away()->first > *end ? end : std::nullopt;
    }
    return std::nullopt;
}

std::string paidByTheEnd(PayrollRun run) {
    if (run == PayrollRun::Month) return "o saldo de salário";
    return run == PayrollRun::Vacation ? "as férias" : "o 13º salário";
}

}  // namespace winvrx
