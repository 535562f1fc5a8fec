#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/line_file.h"
#include "personnel/contract/contract.h"

#include <optional>
#include <string>
#include <vector>

// The contract of an employee, "01contrato001": named like his leave file. Its presence says that
// the contract has been generated.

namespace winvrx {

[[nodiscard]] std::string contractFileName(const EmployeeKey& key);

/// Throws FileFault.
[[nodiscard]] bool hasContract(const Store& store, const EmployeeKey& key);

/// The line on record; nullopt where no contract has been generated. A file without a line is a
/// contract of which nothing is known. Throws FileFault.
[[nodiscard]] std::optional<StoredLine<Contract>> loadContract(const Store& store,
                                                               const EmployeeKey& key);
/// Built upon `existing` as `encode` does. Throws FileFault and TextFault.
void saveContract(const Store& store, const EmployeeKey& key, const Contract& contract,
                  const std::string& existing = {});

/// A trial that ends soon.
struct EndingTrial {
    Employee employee;
    Date lastDay;
};

/// Within so many days from today, today included.
inline constexpr int kTrialNotice = 15;

/// The trials of the company's employees that end within kTrialNotice days, the first to end first.
/// Reads the contracts of those alone who were admitted in the last three months. Throws FileFault.
[[nodiscard]] std::vector<EndingTrial> endingTrials(const Store& store, const CompanyCode& company,
                                                    Date today);

}  // namespace winvrx
