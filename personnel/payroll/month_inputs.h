#pragma once

#include "foundation/register/employee.h"
#include "foundation/register/leave_calendar.h"
#include "personnel/pay/payroll_law.h"
#include "personnel/payroll/pay_sheet_case.h"
#include "personnel/payroll/payroll_facts.h"
#include "timecard/hours/employee_hours.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

// What the records say of an employee's month, as the payroll takes it in.

namespace winvrx {

struct EmployeeMonth {
    Employee employee;
    MonthSettings settings;
    LeaveCalendar leaves;
    PayrollFacts facts;
    std::optional<EmployeeHours> hours;  ///< of the calendar month; none, no card is filled
};

/// Reads them; `names`, of the files in the folder, say what need not be read. Throws FileFault.
[[nodiscard]] EmployeeMonth loadEmployeeMonth(const Store& store, const CompanyCode& company,
                                              const Employee& employee,
                                              const MonthSettings& settings,
                                              const FolderNames& names);

/// The salary of the register; nullopt where it is zero, missing or no amount.
[[nodiscard]] std::optional<Money> salaryOf(const Employee& employee);

/// Days of the month on which the employee is away without pay from the company: vacation, which is
/// paid by itself, military service, and illness or accident from the sixteenth day on (Lei
/// 8.213/1991, art. 60 par. 3). Maternity is paid and taken back from the INSS.
[[nodiscard]] int daysAwayUnpaid(const LeaveCalendar& leaves, const MonthPart& part);

/// Days of the card on which something was worked: for those tickets are bought.
[[nodiscard]] int daysWorked(const EmployeeHours& hours);

/// The month as the payroll computes it, paid on `paid`; nullopt where the contract has no day in
/// it. What tolerance forgives is not missing: hours_pay has its hours from the time card.
[[nodiscard]] std::optional<MonthPayCase> monthCase(const PayrollLaw& law, const EmployeeMonth& of,
                                                    Date paid);

/// "Hora Padrão", "Hora Noturna Normal", "D.S.R", "Horas Falta", "Hora Normal": each label one
/// blank, the label, and blanks up to 25 characters; hours as "220,0".
struct HoursRow {
    std::string label;
    std::string hours;

    [[nodiscard]] bool operator==(const HoursRow&) const = default;
};
[[nodiscard]] std::array<HoursRow, 5> hoursRows(const HourTotals& totals);

}  // namespace winvrx
