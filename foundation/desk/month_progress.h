#pragma once

#include "foundation/values/date.h"

#include <optional>

namespace winvrx {

/// The steps of a month, in their order.
enum class MonthStep { RegisterEmployees, ChooseMonth, FillCards, PrintCards };

/// How far the selected company is with its month.
struct MonthProgress {
    int employees = 0;               ///< that the shift filter passes
    std::optional<WorkMonth> month;  ///< chosen, and its holidays are on record
    int filledCards = 0;             ///< of these employees in that month
    MonthStep next = MonthStep::RegisterEmployees;

    [[nodiscard]] bool operator==(const MonthProgress&) const = default;
};

}  // namespace winvrx
