#include "personnel/leaves/month_absences.h"

#include "foundation/desk/text_report.h"
#include "foundation/files/file_faults.h"
#include "foundation/files/folder_names.h"
#include "foundation/register/employee_register.h"

#include <algorithm>

namespace winvrx {

namespace {

AbsentDay dayOf(const DatedLeave& one, const LeaveCalendar& calendar, Date date) {
    const bool ended = one.leave.isTermination() && date >= one.period.first &&
                       calendar.standingOn(date) == Standing::AfterEnd;
    if (ended || (one.away && one.away->contains(date))) return AbsentDay::Whole;
    const bool inPart = one.leave.isOfHours() && one.period.contains(date);
    return inPart ? AbsentDay::InPart : AbsentDay::No;
}

std::vector<AbsentDay> daysOf(const DatedLeave& one, const LeaveCalendar& calendar,
                              WorkMonth month) {
    std::vector<AbsentDay> days;
    for (Date date = firstDay(month); monthOf(date) == month; date = plusDays(date, 1))
        days.push_back(dayOf(one, calendar, date));
    return days;
}

bool isAny(const std::vector<AbsentDay>& days) {
    return std::ranges::any_of(days, [](AbsentDay day) { return day != AbsentDay::No; });
}

LeaveCalendar leavesOf(const Store& store, const EmployeeKey& key, const Employee& employee) {
    try {
        return loadLeaveCalendar(store, key, employee.admissionDate());
    } catch (const FileFault& fault) {
        throw Fault(fault.what(), employee.code + " " + employee.name + ": " + fault.explanation());
    }
}

}  // namespace

int MonthAbsence::daysAway() const {
    return static_cast<int>(std::ranges::count(days, AbsentDay::Whole));
}

std::vector<MonthAbsence> absencesIn(const Store& store, const CompanyCode& company,
                                     WorkMonth month) {
    const auto recorded = employeesWithLeaveFile(company, namesIn(store));
    std::vector<MonthAbsence> absences;
    for (const EmployeeLine& line : EmployeeRegister(store, company).load()) {
        if (!line.key() || !recorded.contains(*line.key())) continue;
        const LeaveCalendar calendar = leavesOf(store, {company, *line.key()}, line.record);
        for (const DatedLeave& one : calendar.leaves()) {
            auto days = daysOf(one, calendar, month);
            if (one.period.touches(month) || isAny(days))
                absences.push_back({line.record, one.leave, std::move(days)});
        }
        for (const Leave& one : calendar.undated())
            absences.push_back({line.record, one, {}});
    }
    return absences;
}

std::vector<std::string> absenceReport(const std::vector<MonthAbsence>& absences, WorkMonth month) {
    TextReport report({{"Nome do Funcionário", 32},
                       {" Descrição do Afastamento", 47},
                       {"    Data de Início", 27},
                       {"       Data de Término", 30}});
    report.addLine("             Período: " + dateText(firstDay(month)) + " a " +
                   dateText(lastDay(month)));
    report.addLine(
        "           (Usar Fonte: Courier New, Tamanho: 8 / Configurar Pagina: Paisagem)");
    report.addHeading("RELATÓRIO DE AFASTAMENTO");
    report.addRule('|');
    report.addTitles();
    report.addRule('|');
    for (const MonthAbsence& one : absences)
        report.addRow({one.employee.name, " " + one.leave.type + "  " + one.leave.duration,
                       "    " + one.leave.firstDay, "       " + one.leave.lastDay});
    report.addRule('|');
    return report.lines();
}

}  // namespace winvrx
