#pragma once

#include "personnel/payslips/paid_employee.h"
#include "report/report_pages.h"
#include "report/report_request.h"

#include <span>

namespace winvrx {

/// How many events stand on one slip; who has more gets a second one.
inline constexpr std::size_t kSlipEvents = 15;
inline constexpr std::size_t kSlipsOnASheet = 2;

/// The pay slips of a month, two to a sheet with a line to cut along.
[[nodiscard]] ReportRequest paySlipRequest(const PaperHeading& heading);
[[nodiscard]] std::vector<ReportRows> paySlipSheets(const PaperHeading& heading,
                                                    std::span<const PaidEmployee> people);

}  // namespace winvrx
