#pragma once

#include "report/desktop/layout.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

class QIODevice;

namespace winvrx {

/// What a layout may hold, far above any page: a damaged or hostile file ends in a fault, not in a
/// full memory or a run without end.
inline constexpr long long kLargestLayout = 4LL << 20;
inline constexpr int kDeepestGroup = 64;
inline constexpr int kMostRows = 200;              ///< more than paper has lines
inline constexpr std::size_t kMostMarks = 20'000;  ///< counted as often as they are drawn
inline constexpr std::size_t kMostInks = 200;

/// The columns that a layout may draw, in the order of a row's texts.
using ColumnNames = std::vector<std::string>;

/// Compiles an opened layout file. `name` stands in the faults. Throws LayoutFault for XML that is
/// not well-formed, and for anything that could not be drawn as the file asks.
[[nodiscard]] Layout readLayout(QIODevice& file, const std::string& name,
                                const ColumnNames& columns);

/// The file of that name in the first of the folders that has it.
[[nodiscard]] std::optional<std::filesystem::path> findLayout(
    const std::vector<std::filesystem::path>& folders, const std::string& name);

/// Reads the file that findLayout() gives. Throws LayoutFault.
[[nodiscard]] Layout loadLayout(const std::vector<std::filesystem::path>& folders,
                                const std::string& name, const ColumnNames& columns);

}  // namespace winvrx
