#pragma once

#include "foundation/desk/month_progress.h"
#include "foundation/files/data_folder.h"
#include "foundation/values/shift.h"

#include <optional>

namespace winvrx {

/// How far a company is with the month that is worked on; nullopt where none is. Filled cards are
/// counted by the names of their files. Throws Fault when its files cannot be read.
[[nodiscard]] MonthProgress monthProgress(const Store& store, const CompanyCode& company,
                                          ShiftFilter filter, std::optional<WorkMonth> month);

}  // namespace winvrx
