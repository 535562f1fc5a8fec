#include "foundation/files/record_names.h"

#include "foundation/files/payroll_file.h"
#include "foundation/values/digits.h"

#include <algorithm>
#include <functional>

namespace winvrx {

namespace {

/// "01", "001" and "032024.pdx"; a shorter month file is the company's own.
constexpr std::size_t kEmployeeMonthFileLength = 15;

/// "01", "001", "-03-2024", then ".bdx".
constexpr std::size_t kPunchSuffixStart = 14;

constexpr std::size_t kEmployeeEventListStart = 6;

/// `part` stands at character `start` (counted from 1) of `name`.
bool standsAt(std::string_view name, std::size_t start, std::string_view part) {
    return name.size() >= start - 1 + part.size() && name.substr(start - 1, part.size()) == part;
}

bool isPunchOrPayrollFile(std::string_view name) {
    return name.size() > 9 && (name.ends_with(".bdx") || name.ends_with(".prd"));
}

/// "mmyyyy.pdx" at the end of the name.
bool isMonthFile(std::string_view name) {
    if (name.size() < 12 || !name.ends_with(".pdx")) return false;
    return isDigits(name.substr(name.size() - 10, 6));
}

bool isGroup(std::string_view name) {
    return standsAt(name, 3, kGroupStem);
}

bool isSetting(std::string_view name) {
    return std::find(kCompanySettings.begin(), kCompanySettings.end(), name) !=
           kCompanySettings.end();
}

/// "01" and "001" before the end.
bool isEmployeeEventList(std::string_view name) {
    return name.size() == kEmployeeEventListStart - 1 + kEmployeeEventListStem.size() &&
           standsAt(name, kEmployeeEventListStart, kEmployeeEventListStem);
}

bool isEventList(std::string_view name) {
    return name.substr(2) == kEventListStem || isEmployeeEventList(name);
}

std::optional<std::string_view> stemOf(std::string_view name) {
    for (const std::string_view stem :
         {kScheduleStem, kOvertimeStem, kLeaveStem, kContractStem, kPaperInputsStem, kVacationStem,
          kTransferStem, kPayrollFactsStem, kTerminationStems[0], kTerminationStems[1],
          kTerminationStems[2]})
        if (standsAt(name, 3, stem)) return stem;
    return std::nullopt;
}

/// Where the name of an employee's file carries the employee code, counted from 1.
std::size_t employeeCodeStart(std::string_view name) {
    if (isFileOfAnyRun(name)) return kPayrollEmployeeStart;
    return 3 + stemOf(name).value_or(std::string_view()).size();
}

void removeWhere(const Store& store, const std::function<bool(std::string_view)>& chosen) {
    for (const std::string& name : store.files.names(store.folder.path()))
        if (chosen(name)) store.files.remove(store.folder.path() / name);
}

}  // namespace

bool isRecordOfCompany(std::string_view name, const CompanyCode& company) {
    if (!name.starts_with(company.text())) return false;
    return stemOf(name) || name.find(kLeaveStem) != std::string_view::npos ||
           isPunchOrPayrollFile(name) || isMonthFile(name) || name.substr(2) == kEmployeeListStem ||
           isGroup(name) || isSetting(name.substr(2)) || isEventList(name);
}

std::optional<EmployeeCode> employeeOfRecord(std::string_view name, const CompanyCode& company) {
    if (!isRecordOfCompany(name, company) || name.substr(2) == kEmployeeListStem || isGroup(name))
        return std::nullopt;
    const bool hasEmployee = stemOf(name) || isPunchOrPayrollFile(name) ||
                             isEmployeeEventList(name) || name.size() >= kEmployeeMonthFileLength;
    const std::size_t start = employeeCodeStart(name) - 1;
    if (!hasEmployee || start >= name.size()) return std::nullopt;
    return EmployeeCode::parse(name.substr(start, EmployeeCode::kDigits));
}

bool isRecordOfEmployee(std::string_view name, const EmployeeKey& key) {
    return employeeOfRecord(name, key.company) == key.employee;
}

bool isPayrollOfEmployee(std::string_view name, const EmployeeKey& key) {
    return isPayrollFile(name) && isRecordOfEmployee(name, key);
}

bool isPunchRecordOfEmployee(std::string_view name, const EmployeeKey& key) {
    return standsAt(name, kPunchSuffixStart, ".bdx") && !isPayrollFile(name) &&
           isRecordOfEmployee(name, key);
}

std::string renamedForEmployee(std::string_view name, const EmployeeKey& key) {
    const std::size_t start = employeeCodeStart(name);
    std::string renamed(name);
    renamed.replace(start - 1, key.employee.text().size(), key.employee.text());
    renamed.replace(0, key.company.text().size(), key.company.text());
    return renamed;
}

void removeRecordsOfCompany(const Store& store, const CompanyCode& company) {
    removeWhere(store, [&](std::string_view name) { return isRecordOfCompany(name, company); });
}

void removeSettingsOfCompany(const Store& store, const CompanyCode& company) {
    for (const std::string_view name : kCompanySettings)
        store.files.remove(store.folder.companyFile(company, name));
}

void removeRecordsOfEmployee(const Store& store, const EmployeeKey& key) {
    removeWhere(store, [&](std::string_view name) { return isRecordOfEmployee(name, key); });
}

void removeRecordsOfList(const Store& store, const CompanyCode& company,
                         const std::set<EmployeeCode>& employees) {
    removeWhere(store, [&](std::string_view name) {
        const auto employee = employeeOfRecord(name, company);
        return employee ? employees.contains(*employee)
                        : isGroup(name) && isRecordOfCompany(name, company);
    });
}

}  // namespace winvrx
