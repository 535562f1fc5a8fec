#pragma once

#include "personnel/payslips/paid_employee.h"
#include "report/report_pages.h"
#include "report/report_request.h"

#include <span>

namespace winvrx {

/// How many employees, the line of the totals among them, stand on a sheet.
inline constexpr std::size_t kPayrollLines = 26;

/// "FOLHA DE PAGAMENTO": A4 lying, a line an employee, the totals behind the last.
[[nodiscard]] ReportRequest payrollRequest(const PaperHeading& heading);
[[nodiscard]] std::vector<ReportRows> payrollSheets(const PaperHeading& heading,
                                                    std::span<const PaidEmployee> people);

}  // namespace winvrx
