#pragma once

#include "foundation/register/company.h"
#include "output/mirrors/mirror_period.h"
#include "report/report_pages.h"
#include "report/report_request.h"

#include <string>
#include <vector>

// The month at a glance: bars of missing, extra and normal hours an employee, drawn by the layout
// "resumohoras.rpt".

namespace winvrx {

/// An employee's figures in the overview.
struct OverviewLine {
    std::string code;
    std::string name;
    std::chrono::seconds normal{0};
    std::chrono::seconds extra{0};
    std::chrono::seconds missing{0};
};

/// What needs attention first: most missing, then most extra hours; else in the order given.
void sortByAttention(std::vector<OverviewLine>& lines);

/// What stands above the bars.
struct OverviewHeading {
    Company company;
    DayPeriod period;
    TotalsFormat format;
};

/// Each page's rows, a line each. A bar is a share of the longest one: missing and extra hours by
/// one measure, normal hours by their own. At least one page.
[[nodiscard]] std::vector<ReportRows> overviewPages(const OverviewHeading& heading,
                                                    const std::vector<OverviewLine>& lines);

/// For the preview, without an exit for the pages.
[[nodiscard]] ReportRequest overviewRequest();

}  // namespace winvrx
