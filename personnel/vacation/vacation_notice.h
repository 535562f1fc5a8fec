#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/document_template.h"
#include "foundation/register/company.h"
#include "foundation/register/employee.h"
#include "personnel/vacation/vacation_periods.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace winvrx {

/// What papers are written with. The word processor outlives the desk.
struct PaperDesk {
    WordProcessor& writer;
    /// Where their texts lie, the office's own first.
    std::function<std::vector<std::filesystem::path>()> templateFolders;
};

/// What the texts of a vacation may name beside company and employee: period, days, dates.
[[nodiscard]] DocumentWords vacationWords(const Company& company, const Employee& employee,
                                          const VacationItem& item, Date today);

/// "AVISO DE FÉRIAS" of a recorded vacation (CLT, art. 135), nullptr where none is chosen. Asks
/// first; refuses for an employee without a contract, or inactive. False when it was not printed.
[[nodiscard]] bool printVacationNotice(const Workplace& at, const PaperDesk& desk,
                                       const Employee* employee, const VacationItem* item);

}  // namespace winvrx
