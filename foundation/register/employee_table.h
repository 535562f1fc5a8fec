#pragma once

#include "foundation/desk/spreadsheet.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/csv.h"
#include "foundation/values/date.h"

#include <map>
#include <optional>
#include <string_view>
#include <vector>

// The employee list as a table for spreadsheet programs: one column a field, titled with the
// field's caption, and "Situação" ("Ativo" or "Inativo") as the last one.

namespace winvrx {

[[nodiscard]] Table tableOf(const std::vector<EmployeeLine>& lines,
                            const std::map<EmployeeCode, Date>& inactive);

/// The titles as the first row.
[[nodiscard]] CsvRows rowsOf(const Table& table);

/// The field that a column title speaks of: the caption or another usual name, whatever its case,
/// accents and punctuation; nullptr for a title that names none.
[[nodiscard]] const EmployeeField* fieldTitled(std::string_view title);

}  // namespace winvrx
