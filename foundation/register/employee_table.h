#pragma once

#include "foundation/desk/spreadsheet.h"
#include "foundation/register/employee_list.h"
#include "foundation/values/csv.h"

#include <string_view>
#include <vector>

// The employee list as a table for spreadsheet programs: one column a field, titled with the
// field's caption, and "Situação" (activityOf) as the last one.

namespace winvrx {

[[nodiscard]] Table tableOf(const std::vector<EmployeeLine>& lines,
                            const EmployeeList::Marks& marks);

/// The titles as the first row.
[[nodiscard]] CsvRows rowsOf(const Table& table);

/// The field that a column title speaks of: the caption or another usual name, whatever its case,
/// accents and punctuation; nullptr for a title that names none.
[[nodiscard]] const EmployeeField* fieldTitled(std::string_view title);

}  // namespace winvrx
