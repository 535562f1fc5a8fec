#include "personnel/payroll/settings_file.h"

#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"

namespace winvrx {

namespace {

RecordFile fileOf(const Store& store, const CompanyCode& company) {
    return {store, company, kPayrollSettingsName};
}

}  // namespace

CompanyPayrollSettings loadPayrollSettings(const Store& store, const CompanyCode& company) {
    CompanyPayrollSettings loaded;
    for (const std::string& line : fileOf(store, company).values())
        if (!line.empty() && !takeSettingLine(loaded.settings, line)) loaded.unread.push_back(line);
    return loaded;
}

void savePayrollSettings(const Store& store, const CompanyCode& company,
                         const PayrollSettings& settings) {
    std::vector<std::string> lines;
    for (const PayrollSetting& setting : payrollSettings())
        lines.push_back(settingLine(setting, settings));
    RecordFile file = fileOf(store, company);
    PayrollSettings ignored;
    for (std::string& bytes : file.lines())
        if (!bytes.empty() && !takeSettingLine(ignored, bytes)) lines.push_back(std::move(bytes));
    file.rewrite(lines);
}

}  // namespace winvrx
