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

/// The lines of the report of the active employees among `people`, in their order, as UTF-8.
[[nodiscard]] std::vector<std::string> activeReport(const std::vector<ReportedEmployee>& people,
                                                    Date today);

/// The same of the inactive ones, with the day since which they are.
[[nodiscard]] std::vector<std::string> inactiveReport(const std::vector<ReportedEmployee>& people,
                                                      Date today);

}  // namespace winvrx
