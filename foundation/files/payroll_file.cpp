#include "foundation/files/payroll_file.h"

namespace winvrx {

namespace {

/// The stem, and the zeros that make three digits five.
constexpr std::string_view kStem = "fp00";
constexpr std::string_view kEnd = ".bdx";
constexpr std::size_t kCompanyDigits = 2;
static_assert(kPayrollEmployeeStart == kCompanyDigits + kStem.size() + 1);

}  // namespace

std::string payrollFileName(const EmployeeKey& key, WorkMonth month) {
    return key.company.text() + std::string(kStem) + key.employee.text() + monthKey(month) +
           std::string(kEnd);
}

bool isPayrollFile(std::string_view name) {
    return name.size() > kCompanyDigits && name.substr(kCompanyDigits).starts_with(kStem) &&
           name.ends_with(kEnd);
}

}  // namespace winvrx
