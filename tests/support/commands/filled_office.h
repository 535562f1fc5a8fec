#pragma once

#include "foundation/register/employee.h"

#include <map>
#include <string>

// The office that the trials of the disk work on: two companies, the first with three employees,
// the second with two, and the month of March 2024 chosen.

namespace winvrx::testing {

/// Bytes by path, the path relative to the root of drive "C".
using FileTable = std::map<std::string, std::string>;

/// The data folder below the root of its drive.
inline constexpr const char* kDataPath = "Users/Public/Documents/Winvrx/";

/// The path of a file of the data folder in a FileTable.
[[nodiscard]] std::string inDataFolder(const std::string& name);

/// An employee who can be recorded.
[[nodiscard]] Employee officeEmployee(const std::string& code, const std::string& name,
                                      const std::string& admission = "01/02/2020");

[[nodiscard]] FileTable filledOffice();

}  // namespace winvrx::testing
