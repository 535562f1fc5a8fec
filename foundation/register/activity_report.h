#pragma once

#include "foundation/register/employee.h"
#include "foundation/values/date.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// A line of the reports of active and inactive employees.
struct ReportedEmployee {
    std::string name;
    std::string function;
    std::string admission;
    std::optional<Date> inactiveSince;  ///< nullopt while active
};

/// The lines of the report of the active or of the inactive ones among `people`, in their order, as
/// UTF-8; the inactive ones with the day since which they are.
[[nodiscard]] std::vector<std::string> activityReport(const std::vector<ReportedEmployee>& people,
                                                      bool inactive, Date today);

}  // namespace winvrx
