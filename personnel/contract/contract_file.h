#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/folder_names.h"

#include <string>

// The contract of an employee, "01contrato001": named like his leave file. Its presence says that
// the contract has been generated.

namespace winvrx {

[[nodiscard]] std::string contractFileName(const EmployeeKey& key);

/// Throws FileFault.
[[nodiscard]] bool hasContract(const Store& store, const EmployeeKey& key);
[[nodiscard]] bool hasContract(const FolderNames& names, const EmployeeKey& key);

}  // namespace winvrx
