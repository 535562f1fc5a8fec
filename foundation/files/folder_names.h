#pragma once

#include "foundation/files/data_folder.h"

#include <functional>
#include <ranges>
#include <set>
#include <string>
#include <string_view>

namespace winvrx {

/// The names of the files in the folder in use as they were at one moment. A share takes long to
/// list, so a screen or a command lists once and asks this as often as it likes.
using FolderNames = std::set<std::string, std::less<>>;

/// Throws FileFault.
[[nodiscard]] FolderNames namesIn(const Store& store);

/// The names that begin so, in order; they live as long as `names`.
[[nodiscard]] std::ranges::subrange<FolderNames::const_iterator> beginningWith(
    const FolderNames& names, std::string_view beginning);

}  // namespace winvrx
