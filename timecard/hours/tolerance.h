#pragma once

#include "timecard/schedule/standard_schedule.h"

#include <chrono>

namespace winvrx {

/// CLT, art. 58, § 1º: variations of up to five minutes a punch, ten on a day, are neither
/// discounted nor paid; past either limit all of it counts (Súmula 366 do TST).
inline constexpr std::chrono::minutes kMostOfPunch{5};
inline constexpr std::chrono::minutes kMostOfDay{10};

/// Whether each scheduled pair of the day was worked and its punches lie within both limits. The
/// variations are summed without their signs. False for a day on which nothing is scheduled; a pair
/// that is not scheduled has nothing to vary from and is left out.
[[nodiscard]] bool isTolerated(const DaySchedule& worked, const DaySchedule& scheduled);

}  // namespace winvrx
