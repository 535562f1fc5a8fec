#pragma once

#include "timecard/schedule/standard_schedule.h"

#include <chrono>
#include <optional>

namespace winvrx {

/// CLT, art. 58, § 1º: variations of up to five minutes a punch, ten on a day, are neither
/// discounted nor paid; past either limit all of it counts (Súmula 366 do TST).
inline constexpr std::chrono::minutes kMostOfPunch{5};
inline constexpr std::chrono::minutes kMostOfDay{10};

/// By how much the punches of a day vary from the schedule, where each scheduled pair was worked
/// and its punches lie within both limits; nullopt past them. The variations are summed without
/// their signs. nullopt for a day on which nothing is scheduled too; a pair that is not scheduled
/// has nothing to vary from and is left out.
[[nodiscard]] std::optional<std::chrono::minutes> toleratedVariation(const DaySchedule& worked,
                                                                     const DaySchedule& scheduled);

}  // namespace winvrx
