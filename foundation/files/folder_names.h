#pragma once

#include "foundation/files/data_folder.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace winvrx {

/// The names of the files in the folder in use as they were at one moment. A share takes long to
/// list, so a screen or a command lists once and asks this as often as it likes.
using FolderNames = std::set<std::string, std::less<>>;

/// Throws FileFault.
[[nodiscard]] FolderNames namesIn(const Store& store);

/// Some names in a row, for a loop over them.
struct NameRange {
    FolderNames::const_iterator first;
    FolderNames::const_iterator last;

    [[nodiscard]] FolderNames::const_iterator begin() const { return first; }
    [[nodiscard]] FolderNames::const_iterator end() const { return last; }
};

/// The names that begin so, in order; they live as long as `names`.
[[nodiscard]] NameRange beginningWith(const FolderNames& names, std::string_view beginning);

}  // namespace winvrx
