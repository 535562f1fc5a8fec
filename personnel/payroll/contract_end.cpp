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

std::optional<Date> recordedEnd(const LeaveCalendar& leaves) {
    std::optional<Date> last;
    for (const DatedLeave& one : leaves.leaves())
        if (one.leave.isTermination()) last = one.leave.lastDayWorked().value_or(one.period.last);
    return last < leaves.admission() ? std::nullopt : last;
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

std::optional<EndBeside> endBeside(const EmployeeMonth& of, const RunInputs& inputs) {
    const auto inForce = of.leaves.contractEnd();
    const auto last = inForce ? inForce : recordedEnd(of.leaves);
    if (!last) return std::nullopt;
    const WorkMonth month = of.settings.month;
    EndBeside end{*last, !inForce};
    bool isPast = monthOf(*last) <= month;
    switch (inputs.run) {
        case PayrollRun::Month:
            end.pays = monthOf(*last) == month;
            break;
        case PayrollRun::ThirteenthFirst:
        case PayrollRun::ThirteenthSecond:
            end.pays = isPast && last->year() == month.year();
            break;
        case PayrollRun::Vacation:
            end.pays = isPast = inputs.vacation && inputs.vacation->away()->first > *last;
    }
    return end.pays || (end.isActive && isPast) ? std::optional(end) : std::nullopt;
}

std::string paidByTheEnd(PayrollRun run) {
    if (run == PayrollRun::Month) return "o saldo de salário";
    return run == PayrollRun::Vacation ? "as férias" : "o 13º salário";
}

}  // namespace winvrx
