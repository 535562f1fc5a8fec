#include "personnel/forms/form_page.h"

#include "foundation/register/merge_fields.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr int kMostDays = 31;

std::string postalCodeText(const std::string& code) {
    return code.empty() ? "" : "CEP " + code;
}

/// "21 de novembro de 2026".
std::string longDate(Date date) {
    return std::to_string(dayNumber(date)) + " de " + std::string(monthName(date.month())) +
           " de " + std::to_string(static_cast<int>(date.year()));
}

MergeWords wordsOf(const FormPage& page) {
    const Company& company = page.company;
    const Employee& employee = page.employee;
    MergeWords words = mergeWords(company, employee);
    if (employee.name.empty()) words.put("descanso", "");
    words.put("mes", "");
    words.put("periodo", "");
    if (page.month) putMonth(words, *page.month);
    const std::string place = joined({company.city, company.state}, "/");
    words.put("sede",
              joined({company.address, company.district, place, postalCodeText(company.postalCode)},
                     " - "));
    words.put("residencia", joined({employee.address, employee.district,
                                    joined({employee.city, employee.state}, "/"),
                                    postalCodeText(employee.postalCode)},
                                   " - "));
    words.put("local", place);
    words.put("hoje", page.printedOn ? longDate(*page.printedOn) : "");
    return words;
}

}  // namespace

std::vector<std::string> formColumns() {
    const MergeWords words = wordsOf({});
    std::vector<std::string> names;
    for (const auto& [name, value] : words.all())
        names.push_back(name);
    names.insert(names.end(), {"dia", "semana"});
    return names;
}

ReportRows formRows(const FormPage& page) {
    const MergeWords words = wordsOf(page);
    ReportRow shared;
    for (const auto& [name, value] : words.all())
        shared.push_back(value);
    const int days = page.month ? daysIn(*page.month) : kMostDays;
    ReportRows rows;
    for (int day = 1; day <= days; ++day) {
        rows.push_back(shared);
        rows.back().push_back(padded(day, 2));
        rows.back().push_back(page.month ? std::string(weekdayShort(
                                               weekdayOf(plusDays(firstDay(*page.month), day - 1))))
                                         : "");
    }
    return rows;
}

}  // namespace winvrx
