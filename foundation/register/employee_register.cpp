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

void EmployeeRegister::save(const std::vector<EmployeeLine>& lines, Clock::Moment now) {
    keepCopy(now);
    list_.save(lines);
}

void EmployeeRegister::keepCopy(Clock::Moment now) {
    if (const auto before =
            store_.files.read(store_.folder.companyFile(company_, kEmployeeListStem)))
        store_.files.replace(store_.folder.file(backupName(company_, now)), *before);
}

std::set<EmployeeCode> EmployeeRegister::codesOfFiles() const {
    std::set<EmployeeCode> codes;
    for (const std::string& name : store_.files.names(store_.folder.path()))
        if (const auto code = employeeOfRecord(name, company_)) codes.insert(*code);
    return codes;
}

EmployeeLine requireRegistered(const Store& store, const EmployeeKey& key) {
    const auto lines = EmployeeRegister(store, key.company).load();
    const EmployeeLine* line = findLine(lines, key.employee);
    if (!line) throw changedElsewhere("employee list");
    return *line;
}

std::vector<Employee> employeesOf(const std::vector<EmployeeLine>& lines, ShiftFilter filter) {
    std::vector<Employee> chosen;
    for (const EmployeeLine& line : lines)
        if (line.key() && passes(filter, line.record.shiftOr())) chosen.push_back(line.record);
    return chosen;
}

}  // namespace winvrx
