#include "foundation/files/payroll_file.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

/// By the number of the run: its stem, and the zeros that make three digits five.
constexpr std::array<std::string_view, 4> kStems = {"fp00", "fa00", "fi00", "fv00"};
constexpr std::string_view kEnd = ".bdx";
constexpr std::size_t kCompanyDigits = 2;
static_assert(kPayrollEmployeeStart == kCompanyDigits + kStems[0].size() + 1);

constexpr std::string_view stemOf(PayrollRun run) {
    return kStems[static_cast<std::size_t>(run)];
}

bool hasStem(std::string_view name, std::string_view stem) {
    return name.size() > kCompanyDigits && name.substr(kCompanyDigits).starts_with(stem) &&
           name.ends_with(kEnd);
}

}  // namespace

std::string payrollFileName(const EmployeeKey& key, WorkMonth month, PayrollRun run) {
    return key.company.text() + std::string(stemOf(run)) + key.employee.text() + monthKey(month) +
           std::string(kEnd);
}

bool isPayrollFile(std::string_view name) {
    return hasStem(name, stemOf(PayrollRun::Month));
}

bool isFileOfAnyRun(std::string_view name) {
    return std::ranges::any_of(kStems, [&](std::string_view stem) { return hasStem(name, stem); });
}

}  // namespace winvrx
