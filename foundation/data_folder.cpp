#include "foundation/data_folder.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace winvrx {

namespace {

/// "01", "001" and "032024.pdx"; a shorter month file is the company's own.
constexpr std::size_t kEmployeeMonthFileLength = 15;

std::string withForwardSlashes(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

/// `part` stands at character `start` (counted from 1) of `name`.
bool standsAt(std::string_view name, std::size_t start, std::string_view part) {
    return name.size() >= start - 1 + part.size() && name.substr(start - 1, part.size()) == part;
}

bool isPunchOrPayrollFile(std::string_view name) {
    return name.size() > 9 && (name.ends_with(".bdx") || name.ends_with(".prd"));
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

/// "mmyyyy.pdx" at the end of the name.
bool isMonthFile(std::string_view name) {
    if (name.size() < 12 || !name.ends_with(".pdx")) return false;
    const std::string_view month = name.substr(name.size() - 10, 6);
    return std::all_of(month.begin(), month.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void removeWhere(FileSystem& files, const DataFolder& folder,
                 const std::function<bool(std::string_view)>& chosen) {
    for (const std::string& name : files.names(folder.path()))
        if (chosen(name)) files.remove(folder.path() / name);
}

}  // namespace

std::filesystem::path pathOnDrive(const Drives& drives, char letter, std::string_view literal) {
    const std::filesystem::path root = drives.root(letter);
    if (root.empty()) return {};
    return root / withForwardSlashes(literal.substr(2));
}

bool isShare(std::string_view programFolder) {
    return programFolder.starts_with("\\\\");
}

std::filesystem::path shareDataFolder(std::string_view programFolder) {
    return withForwardSlashes(std::string(programFolder) + "\\Winvrx\\");
}

std::filesystem::path DataFolder::file(std::string_view name) const {
    if (name.empty() || name.find_first_of("/\\:") != std::string_view::npos ||
        name.starts_with(".") || std::any_of(name.begin(), name.end(), isControl))
        throw std::invalid_argument("not a bare file name: " + std::string(name));
    return path_ / name;
}

bool isRecordOfCompany(std::string_view name, const CompanyCode& company) {
    if (!name.starts_with(company.text())) return false;
    return standsAt(name, 3, kScheduleStem) || standsAt(name, 3, kOvertimeStem) ||
           name.find(kLeaveStem) != std::string_view::npos || isPunchOrPayrollFile(name) ||
           isMonthFile(name) || name.substr(2) == kEmployeeListStem;
}

bool isRecordOfEmployee(std::string_view name, const CompanyCode& company,
                        const EmployeeCode& employee) {
    if (!isRecordOfCompany(name, company)) return false;
    for (const std::string_view stem : {kScheduleStem, kOvertimeStem, kLeaveStem})
        if (standsAt(name, 3, stem)) return standsAt(name, 3 + stem.size(), employee.text());
    const bool hasEmployee = isPunchOrPayrollFile(name) || name.size() >= kEmployeeMonthFileLength;
    return hasEmployee && name.substr(2) != kEmployeeListStem && standsAt(name, 3, employee.text());
}

void removeRecordsOfCompany(FileSystem& files, const DataFolder& folder,
                            const CompanyCode& company) {
    removeWhere(files, folder,
                [&](std::string_view name) { return isRecordOfCompany(name, company); });
}

void removeRecordsOfEmployee(FileSystem& files, const DataFolder& folder,
                             const CompanyCode& company, const EmployeeCode& employee) {
    removeWhere(files, folder,
                [&](std::string_view name) { return isRecordOfEmployee(name, company, employee); });
}

}  // namespace winvrx
