#pragma once

#include "foundation/register/employee_register.h"

#include <string_view>
#include <vector>

namespace winvrx {

/// Orders names as a Portuguese dictionary does: accents and case do not separate, and decide only
/// between names that are otherwise the same. Equal names keep their order.
void sortByName(std::vector<EmployeeLine>& lines);

/// Oldest admission first; equal dates keep their order. Throws Fault, with `lines` as they were,
/// when a line's admission date cannot be read.
void sortByAdmission(std::vector<EmployeeLine>& lines);

/// Puts the line at `from` to the place `to`, both counted from 0 and within the list.
void moveLine(std::vector<EmployeeLine>& lines, std::size_t from, std::size_t to);

}  // namespace winvrx
