#include "timecard/punches/month_progress.h"

#include "foundation/files/folder_names.h"
#include "foundation/register/employee_register.h"
#include "timecard/punches/punch_record.h"

#include <algorithm>

namespace winvrx {

namespace {

MonthStep nextStep(const MonthProgress& progress) {
    if (progress.employees == 0) return MonthStep::RegisterEmployees;
    if (!progress.month) return MonthStep::ChooseMonth;
    if (progress.filledCards < progress.employees) return MonthStep::FillCards;
    return MonthStep::PrintCards;
}

}  // namespace

MonthProgress monthProgress(const Store& store, const CompanyCode& company, ShiftFilter filter,
                            std::optional<WorkMonth> month) {
    const auto people = employeesOf(EmployeeRegister(store, company).load(), filter);
    MonthProgress progress;
    progress.employees = static_cast<int>(people.size());
    progress.month = month;
    if (month) {
        const FolderNames names = namesIn(store);
        progress.filledCards =
            static_cast<int>(std::ranges::count_if(people, [&](const Employee& one) {
                return names.contains(punchFileName({company, *one.employeeCode()}, *month));
            }));
    }
    progress.next = nextStep(progress);
    return progress;
}

}  // namespace winvrx
