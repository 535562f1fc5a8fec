#pragma once

#include "report/desktop/layout.h"

#include <cstddef>

class QIODevice;

namespace winvrx {

/// What a layout may hold, far above any card: a damaged or hostile file ends in a fault, not in a
/// full memory or a run without end.
inline constexpr long long kLargestLayout = 4LL << 20;
inline constexpr int kDeepestGroup = 64;
inline constexpr std::size_t kMostMarks = 20'000;
inline constexpr std::size_t kMostInks = 200;

/// Compiles an opened layout file. `name` stands in the faults. Throws LayoutFault for XML that is
/// not well-formed, and for anything that could not be drawn as the file asks.
[[nodiscard]] Layout readLayout(QIODevice& file, const std::string& name);

}  // namespace winvrx
