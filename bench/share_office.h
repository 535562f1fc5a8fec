#pragma once

#include "foundation/desk/log.h"
#include "foundation/files/data_folder.h"
#include "foundation/values/codes.h"

namespace winvrx {

inline constexpr int kEmployees = EmployeeCode::kHighest;
inline constexpr int kOnLeave = 20;  ///< so many have a leave file
inline const CompanyCode kCompany = *CompanyCode::parse("01");

/// 99 companies, of which kCompany has 999 employees, each with a schedule and the cards of the 23
/// months up to March 2024; and the safety copy of the day before the 15th of March 2024.
void fillOffice(const Drives& drives, Log& log);

}  // namespace winvrx
