#pragma once

#include "foundation/register/company_register.h"
#include "foundation/values/codes.h"
#include "tests/support/employees.h"
#include "timecard/schedule/standard_schedule.h"

#include <string>
#include <vector>

// The offices that the benchmarks work on.

namespace winvrx {

/// As many companies as there can be: "PADARIA E CONFEITARIA NÚMERO 01 LTDA".
inline void recordCompanies(const Store& store) {
    std::vector<CompanyLine> lines;
    for (int number = 1; number <= CompanyCode::kHighest; ++number) {
        Company company = sampleCompany(*parseDate("15/03/2024"));
        company.code = CompanyCode::fromNumber(number)->text();
        company.name = "PADARIA E CONFEITARIA NÚMERO " + company.code + " LTDA";
        lines.push_back({encode(company), company});
    }
    companyFile(store).save(lines);
}

/// The employees "001" to `count`, the code behind the name.
[[nodiscard]] inline std::vector<Employee> staff(const std::string& name,
                                                 const testing::EmployeeTerms& terms,
                                                 int count = EmployeeCode::kHighest) {
    std::vector<Employee> people;
    for (int number = 1; number <= count; ++number) {
        const std::string code = EmployeeCode::fromNumber(number)->text();
        people.push_back(testing::employee(code, name + " " + code, terms));
    }
    return people;
}

/// From 08:00 to 12:00 and from 13:00 to 17:00.
[[nodiscard]] inline StandardSchedule eightHours() {
    StandardSchedule schedule;
    schedule.weekday = {{parseTime("08:00"), parseTime("12:00")},
                        {parseTime("13:00"), parseTime("17:00")}};
    return schedule;
}

}  // namespace winvrx
