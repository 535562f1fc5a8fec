#pragma once

#include <string_view>
#include <vector>

namespace winvrx {

/// The bars of a text as Code 128 (ISO/IEC 15417), as widths in modules: a bar, a space, a bar …, a
/// bar at last. An even count of digits is written two to a symbol, anything else of printable
/// ASCII one. Empty for an empty text and for one with other characters. The quiet zone of
/// kQuietModules at either side is the caller's.
[[nodiscard]] std::vector<int> code128Bars(std::string_view text);

inline constexpr int kQuietModules = 10;

}  // namespace winvrx
