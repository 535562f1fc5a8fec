#include "timecard/punches/month_progress.h"

#include "foundation/register/employee_register.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/selected_month.h"
#include "timecard/punches/punch_record.h"

#include <algorithm>
#include <set>

namespace winvrx {

namespace {

MonthStep nextStep(const MonthProgress& progress) {
    if (progress.employees == 0) return MonthStep::RegisterEmployees;
    if (!progress.month) return MonthStep::ChooseMonth;
    if (progress.filledCards < progress.employees) return MonthStep::FillCards;
    return MonthStep::PrintCards;
}

}  // namespace

MonthProgress monthProgress(const Store& store, const CompanyCode& company, ShiftFilter filter) {
    const auto people = employeesOf(EmployeeRegister(store, company).load(), filter);
    MonthProgress progress;
    progress.employees = static_cast<int>(people.size());
    const auto selected = loadSelectedMonth(store);
    if (selected && hasMonthSettings(store, selected->month)) {
        progress.month = selected->month;
        const auto listed = store.files.names(store.folder.path());
        const std::set<std::string> names(listed.begin(), listed.end());
        progress
            .filledCards = static_cast<int>(std::ranges::count_if(people, [&](const Employee& one) {
            return names.contains(punchFileName({company, *one.employeeCode()}, selected->month));
        }));
    }
    progress.next = nextStep(progress);
    return progress;
}

}  // namespace winvrx
