#include "personnel/payroll/month_inputs.h"

#include "foundation/values/text.h"
#include "personnel/leaves/leave_types.h"
#include "personnel/pay/absences.h"
#include "personnel/pay/card_history.h"

namespace winvrx {

namespace {

constexpr int kMostDependants = 99;
constexpr std::size_t kLabelWidth = 25;

/// How a leave pays, by the number of its type.
enum class LeavePay { Paid, PaidAtFirst, Unpaid };

LeavePay payOf(const DatedLeave& leave) {
    const std::string_view number = leaveTypeOf(leave.leave.type).substr(0, 3);
    if (number == "001" || number == "003") return LeavePay::PaidAtFirst;
    if (number == "004" || number == "006") return LeavePay::Unpaid;
    return LeavePay::Paid;
}

bool isUnpaidOn(const DatedLeave& leave, Date date) {
    switch (payOf(leave)) {
        case LeavePay::Paid:
            return false;
        case LeavePay::PaidAtFirst:
            return date >= plusDays(leave.period.first, kIllnessDaysPaid);
        case LeavePay::Unpaid:
            return true;
    }
    return false;
}

void takeHours(const PayrollLaw& law, const EmployeeMonth& of, MonthPayCase& month) {
    const HourTotals totals = of.hours->totals();
    const OvertimeRules& rates = of.hours->terms.overtime;
    month.minimum = {rates.minimumPercent, rates.nightMinimumPercent,
                     totals[HourCategory::ExtraMinimum], totals[HourCategory::NightExtraMinimum]};
    month.maximum = {rates.maximumPercent, rates.nightMaximumPercent,
                     totals[HourCategory::ExtraMaximum], totals[HourCategory::NightExtraMaximum]};
    month.nightHours = totals[HourCategory::NormalNight];
    LostTime lost = lostTime(*of.hours);
    month.absentDays = static_cast<int>(lost.absences.size());
    month.missing = lost.missing;
    month.restsLost = restDaysLost(lost.absences, of.settings);
    lost.delays.insert(lost.delays.end(), lost.absences.begin(), lost.absences.end());
    month.restsLostByDelay = restDaysLost(lost.delays, of.settings) - month.restsLost;
    month.days = countPayDays(law, of.settings);
}

void takeFacts(const EmployeeMonth& of, MonthPayCase& month) {
    month.alimony = of.facts.alimony;
    month.alimonyOfGross = of.facts.alimonyOfGross;
    month.alimonyOfNet = of.facts.alimonyOfNet;
    month.privatePension = of.facts.privatePension;
    if (of.facts.isApprentice) month.fgtsRate = FgtsRate::Apprentice;
    month.voucherCost = std::nullopt;
    if (!of.facts.voucherPerDay) return;
    const int days = of.hours ? daysWorked(*of.hours) : 0;
    month.voucherCost = Money{of.facts.voucherPerDay->cents * days};
}

HoursRow rowOf(std::string_view label, std::chrono::seconds hours) {
    std::string text = decimalHours(hours, Decimals::One);
    // The mask "000,0".
    if (text.size() < 5) text.insert(0, 5 - text.size(), '0');
    return {fitted(" " + std::string(label), kLabelWidth), text};
}

}  // namespace

EmployeeMonth loadEmployeeMonth(const Store& store, const CompanyCode& company,
                                const Employee& employee, const MonthSettings& settings,
                                const FolderNames& names) {
    const EmployeeKey key{company, employee.employeeCode().value()};
    const auto has = [&](const std::string& name) { return names.contains(name); };
    EmployeeMonth month{employee, settings, LeaveCalendar({}, employee.admissionDate()), {}, {}};
    if (has(payrollFactsName(key))) month.facts = loadPayrollFacts(store, key).facts;
    if (has(company.text() + leaveFileName(key.employee)))
        month.leaves = loadLeaveCalendar(store, key, employee.admissionDate());
    if (has(punchFileName(key, settings.month)))
        month.hours =
            loadEmployeeHours(store, company, employee, settings, HoursPeriod::CalendarMonth);
    return month;
}

std::optional<Money> salaryOf(const Employee& employee) {
    const auto salary = parseMoney(employee.salary);
    return salary && salary->cents > 0 ? salary : std::nullopt;
}

int daysAwayUnpaid(const LeaveCalendar& leaves, const MonthPart& part) {
    int away = 0;
    for (Date date = part.first; date <= part.last; date = plusDays(date, 1))
        if (const DatedLeave* leave = leaves.leaveOn(date); leave != nullptr)
            away += isUnpaidOn(*leave, date) ? 1 : 0;
    return away;
}

int daysWorked(const EmployeeHours& hours) {
    int days = 0;
    Date date = hours.period.first;
    for (const PunchLine& line : hours.lines) {
        if (dayHours(line, date, hours.terms).worked().count() > 0) ++days;
        date = plusDays(date, 1);
    }
    return days;
}

std::optional<MonthPayCase> monthCase(const PayrollLaw& law, const EmployeeMonth& of, Date paid) {
    const WorkMonth when = of.settings.month;
    const Date admission = of.employee.admissionDate().value_or(firstDay(when));
    auto part = employedPart(when, admission, of.leaves.contractEnd());
    if (!part) return std::nullopt;
    part->daysAway = daysAwayUnpaid(of.leaves, *part);
    MonthPayCase month{.part = *part, .paid = paid};
    month.salary = salaryOf(of.employee).value_or(Money{});
    takeFacts(of, month);
    month.dependants = parseWholeNumber(of.employee.dependants, 0, kMostDependants).value_or(0);
    if (of.hours) takeHours(law, of, month);
    return month;
}

std::array<HoursRow, 5> hoursRows(const HourTotals& totals) {
    const auto standard = totals[HourCategory::Standard];
    const auto missing = totals[HourCategory::Missing];
    return {rowOf("Hora Padrão", standard),
            rowOf("Hora Noturna Normal", totals[HourCategory::NormalNight]),
            rowOf("D.S.R", totals[HourCategory::WeeklyRest]), rowOf("Horas Falta", missing),
            rowOf("Hora Normal", standard - missing)};
}

}  // namespace winvrx
