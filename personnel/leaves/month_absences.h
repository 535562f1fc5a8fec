#pragma once

#include "foundation/register/employee.h"
#include "foundation/register/leave_calendar.h"

#include <string>
#include <vector>

// Who of a company is away in a month, leave by leave.

namespace winvrx {

/// What a day of the month is to an absence.
enum class AbsentDay { No, Whole, InPart };

struct MonthAbsence {
    Employee employee;
    Leave leave;                  ///< texts as recorded, days that are none among them
    std::vector<AbsentDay> days;  ///< of the month, from the 1st; none away where it has no dates

    [[nodiscard]] int daysAway() const;
};

/// The leaves of a company's employees that touch the month, in order of list and record; those
/// without readable dates come last of their employee. Of a termination the days away are those
/// after the contract's end too. Throws FileFault, and Fault naming who has leaves that cannot be
/// read.
[[nodiscard]] std::vector<MonthAbsence> absencesIn(const Store& store, const CompanyCode& company,
                                                   WorkMonth month);

/// "RELATÓRIO DE AFASTAMENTO": the lines of the report, as UTF-8.
[[nodiscard]] std::vector<std::string> absenceReport(const std::vector<MonthAbsence>& absences,
                                                     WorkMonth month);

}  // namespace winvrx
