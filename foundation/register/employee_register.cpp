#include "foundation/register/employee_register.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

std::string backupName(const CompanyCode& company, Clock::Moment now) {
    std::string date = dateText(now.date);
    std::replace(date.begin(), date.end(), '/', '-');
    const auto hour = static_cast<int>(now.time.sinceMidnight.count() / 60);
    return "bk-" + company.text() + date + "-" + padded(hour, 2) + "-00.bkp";
}

}  // namespace

EmployeeLine lineOf(const Employee& employee, std::string existing) {
    std::string bytes = encode(employee, std::move(existing));
    Employee stored = decodeEmployee(bytes);
    return {std::move(bytes), std::move(stored)};
}

EmployeeRegister::EmployeeRegister(const Store& store, CompanyCode company)
    : store_(store), company_(std::move(company)) {}

std::vector<EmployeeLine> EmployeeRegister::load() const {
    std::vector<EmployeeLine> lines;
    const RecordFile file(store_, company_, kEmployeeListStem);
    std::vector<std::string> stored = file.lines();
    lines.reserve(stored.size());
    for (std::string& bytes : stored) {
        Employee employee = decodeEmployee(bytes);
        lines.push_back({std::move(bytes), std::move(employee)});
    }
    return lines;
}

void EmployeeRegister::save(const std::vector<EmployeeLine>& lines, Clock::Moment now) {
    keepCopy(now);
    store_.files.replaceAll({contentOf(lines)});
}

void EmployeeRegister::keepCopy(Clock::Moment now) {
    if (const auto before =
            store_.files.read(store_.folder.companyFile(company_, kEmployeeListStem)))
        store_.files.replace(store_.folder.file(backupName(company_, now)), *before);
}

FileSystem::NewContent EmployeeRegister::contentOf(const std::vector<EmployeeLine>& lines) const {
    std::vector<std::string> bytes;
    bytes.reserve(lines.size());
    for (const EmployeeLine& line : lines)
        bytes.push_back(line.bytes);
    return {store_.folder.companyFile(company_, kEmployeeListStem), joinedLines(bytes)};
}

std::optional<EmployeeCode> EmployeeRegister::lowestFreeCode(
    const std::vector<EmployeeLine>& lines) {
    std::vector<bool> taken(EmployeeCode::kHighest + 1, false);
    for (const EmployeeLine& line : lines)
        if (const auto code = line.code()) taken[static_cast<std::size_t>(code->number())] = true;
    for (int number = 1; number <= EmployeeCode::kHighest; ++number)
        if (!taken[static_cast<std::size_t>(number)]) return EmployeeCode::fromNumber(number);
    return std::nullopt;
}

bool bears(const std::vector<EmployeeLine>& lines, const std::optional<EmployeeCode>& code) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const EmployeeLine& line) { return line.code() == code; });
}

std::vector<Employee> employeesOf(const std::vector<EmployeeLine>& lines, ShiftFilter filter) {
    std::vector<Employee> chosen;
    for (const EmployeeLine& line : lines)
        if (line.code() && passes(filter, line.employee.shiftOr())) chosen.push_back(line.employee);
    return chosen;
}

}  // namespace winvrx
