#include "foundation/register/leave_file.h"
#include "personnel/payroll/contract_end.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/payroll/settings_file.h"
#include "personnel/termination/termination_sheet.h"
#include "personnel/vacation/vacation_periods.h"
#include "personnel/vacation/vacation_record.h"

#include <algorithm>

namespace winvrx {

namespace {

/// Fractions and days sold aside, so many days of vacation make a period's: a third may be sold.
constexpr int kDaysThatFillAPeriod = 20;
constexpr int kMonthsLookedBack = 12;
constexpr int kFullVacation = 30;

Leave recordedLeave(const Store& store, const EmployeeKey& key, const Employee& employee) {
    LeaveFile file = loadLeaveFile(store, key);
    const auto place = file.termination();
    if (!place)
        throw Fault("no termination on record", "Registre primeiro a rescisão de " + employee.name +
                                                    " na tela de Afastamentos, com o tipo 008.");
    return std::move(file.leaves[*place].record);
}

/// Vacations that the leaves on record have given.
int periodsTaken(const LeaveCalendar& leaves) {
    int periods = 0;
    int days = 0;
    for (const DatedLeave& leave : leaves.leaves()) {
        if (!leave.leave.type.starts_with("006")) continue;
        days += leave.period.days();
        if (days < kDaysThatFillAPeriod) continue;
        ++periods;
        days = 0;
    }
    return periods;
}

/// What the leaves have not given, of an employee whose vacations are not recorded apart.
void takePeriodsByLeaves(TerminationInputs& inputs, Date last) {
    auto periods = acquisitionPeriods(inputs.periods, last);
    std::erase_if(periods, [last](const AcquisitionPeriod& period) {
        return period.forfeit || period.last >= last;
    });
    const auto taken = static_cast<std::size_t>(periodsTaken(inputs.lastMonth.leaves));
    periods.erase(periods.begin(),
                  periods.begin() + static_cast<std::ptrdiff_t>(std::min(taken, periods.size())));
    inputs.overduePeriods = static_cast<int>(periods.size());
    inputs.doubledPeriods = static_cast<int>(std::ranges::count_if(
        periods, [&](const AcquisitionPeriod& period) { return period.limit < last; }));
}

/// What is left of the periods of the vacation screen; a vacation after the last day is not taken.
void takePeriodsByRecord(TerminationInputs& inputs, VacationLines vacations, Date last) {
    std::erase_if(vacations, [&](const VacationLine& line) {
        const auto away = line.record.away();
        return away && away->first > last;
    });
    const auto whole = [](const AcquisitionPeriod&) { return kFullVacation; };
    for (const PeriodRow& row : periodRows(inputs.periods, last, vacations, whole)) {
        if (row.status != PeriodStatus::Pending || !row.isAcquiredOn(last)) continue;
        const bool isPast = row.period.limit < last;
        if (row.days == kFullVacation) {
            ++inputs.overduePeriods;
            inputs.doubledPeriods += isPast ? 1 : 0;
        } else {
            inputs.overdueDays += row.days * (isPast ? 2 : 1);
        }
    }
}

/// What is said holds, over what the records give.
void takePeriods(TerminationInputs& inputs, VacationLines vacations) {
    const Date last = inputs.record.dates.lastDayWorked.value;
    const PayrollFacts& facts = inputs.lastMonth.facts;
    inputs.periods = acquisitionCount(inputs.record.admission, inputs.lastMonth.leaves, vacations);
    if (vacations.empty())
        takePeriodsByLeaves(inputs, last);
    else
        takePeriodsByRecord(inputs, std::move(vacations), last);
    if (facts.overduePeriods) {
        inputs.overduePeriods = *facts.overduePeriods;
        inputs.overdueDays = 0;
    }
    inputs.doubledPeriods =
        std::min(inputs.overduePeriods, facts.doubledPeriods.value_or(inputs.doubledPeriods));
}

TerminationInputs loadInputs(const Store& store, const CompanyCode& company,
                             const Employee& employee, const FolderNames& names) {
    const EmployeeKey key{company, employee.employeeCode().value()};
    const auto admission = employee.admissionDate();
    if (!admission)
        throw Fault("no admission",
                    "O cadastro de " + employee.name + " não tem uma data de admissão válida.");
    const PayrollFacts facts = loadPayrollFacts(store, key).facts;
    TerminationInputs inputs{.record = terminationRecord(recordedLeave(store, key, employee),
                                                         *admission, facts.endsByAgreement)};
    const WorkMonth month = monthOf(inputs.record.dates.lastDayWorked.value);
    SettingsByMonth months;
    inputs.lastMonth = loadEmployeeMonth(store, company, employee, months.of(store, month), names);
    const OvertimeRules& rates = inputs.lastMonth.hours ? inputs.lastMonth.hours->terms.overtime
                                                        : inputs.lastMonth.settings.overtime;
    inputs.events = loadEvents(store, key, companyEvents(store, company).load(), rates, names);
    if (const auto recorded = loadPayroll(store, key, month))
        inputs.typed = typedAmounts(recorded->sheet);
    inputs.paid = paidBeforeTheEnd(store, key, inputs.record.dates.lastDayWorked.value, names);
    const LeavePeriod span{firstDay(month - std::chrono::months{kMonthsLookedBack}),
                           inputs.record.dates.lastDayWorked.value};
    inputs.history = loadCardHistory(store, company, employee, span, months, names);
    takePeriods(inputs, loadVacations(store, key, names));
    return inputs;
}

}  // namespace

TerminationSheet loadTerminationSheet(const Store& store, const std::filesystem::path& legalFolder,
                                      const CompanyCode& company, const Employee& employee) {
    const LegalTables tables = loadLegalTables(store, legalFolder);
    const PayrollSettings settings = loadPayrollSettings(store, company).settings;
    const PayrollLaw law{tables, settings};
    TerminationInputs inputs = loadInputs(store, company, employee, namesIn(store));
    const Explained<Date>& end = inputs.record.dates.noticeEnds;
    Explained<Date>& due = inputs.record.dates.paymentDue;
    const Explained<Date> byRule = paymentDue(inputs.record.dates.lastDayWorked.value);
    if (settings.paymentTerm == PaymentTerm::FromProjectedEnd && due.value == byRule.value)
        due = paymentDue(end.value);
    return terminationSheet(law, inputs);
}

}  // namespace winvrx
