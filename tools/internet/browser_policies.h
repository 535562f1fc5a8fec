#pragma once

#include "foundation/files/file_system.h"
#include "tools/internet/web_switch.h"

#include <filesystem>
#include <string>
#include <vector>

// Videos and images on Linux: browsers read rules for all users from folders of the system. Each of
// our rules is a file of our own name there; those of others are never touched.

namespace winvrx {

/// Writes the rule of a switch for each browser that is installed, or takes it away from all.
/// `root` is "/" but in tests. Returns the names of the browsers; of Internet there is no rule, and
/// none. Throws FileFault where the right to write is missing.
std::vector<std::string> applyPolicy(FileSystem& files, const std::filesystem::path& root,
                                     WebSwitch which, bool blocked);

/// The browsers for which the rule stands.
[[nodiscard]] std::vector<std::string> browsersWithPolicy(const FileSystem& files,
                                                          const std::filesystem::path& root,
                                                          WebSwitch which);

}  // namespace winvrx
