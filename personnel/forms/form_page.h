#pragma once

#include "foundation/register/company.h"
#include "foundation/register/employee.h"
#include "foundation/values/date.h"
#include "report/report_pages.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// What a form's page is filled with; what is missing stays blank.
struct FormPage {
    Company company = {};
    Employee employee = {};
    std::optional<WorkMonth> month = {};
    std::optional<Date> printedOn = {};
};

/// The columns of `Tabela_base` for a form: the merge words, "sede" and "residencia" (the whole
/// address of company and employee), "local" and "hoje" (where and when it is printed), and of a
/// day "dia" and "semana".
[[nodiscard]] std::vector<std::string> formColumns();

/// A row for each day of the month, or without one for each day that a month may have.
[[nodiscard]] ReportRows formRows(const FormPage& page);

}  // namespace winvrx
