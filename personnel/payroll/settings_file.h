#pragma once

#include "foundation/files/data_folder.h"
#include "personnel/pay/payroll_settings.h"

#include <string>
#include <vector>

namespace winvrx {

/// How a company computes its payroll: the record "01FolhaOpcoes", a line a setting, "inss = 1".
/// A setting without a line has its usual value.
struct CompanyPayrollSettings {
    PayrollSettings settings;
    std::vector<std::string> unread;  ///< lines that name no setting or no choice of it
};

/// Throws FileFault.
[[nodiscard]] CompanyPayrollSettings loadPayrollSettings(const Store& store,
                                                         const CompanyCode& company);

/// Lines that are not understood are kept as they stand. Throws FileFault.
void savePayrollSettings(const Store& store, const CompanyCode& company,
                         const PayrollSettings& settings);

}  // namespace winvrx
