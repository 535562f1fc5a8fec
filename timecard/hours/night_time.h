#pragma once

#include <chrono>

namespace winvrx {

/// Night time by the clock (CLT, art. 73, § 2º); an hour counts sixty minutes.
inline constexpr std::chrono::hours kNightStart{22};
inline constexpr std::chrono::hours kNightEnd{5};

/// `sinceMidnight` counts from the midnight that begins a day and may lie on the days after.
[[nodiscard]] bool isNight(std::chrono::seconds sinceMidnight);

/// The first instant after `sinceMidnight` at which day turns to night or night to day.
[[nodiscard]] std::chrono::seconds nextTurn(std::chrono::seconds sinceMidnight);

}  // namespace winvrx
