#pragma once

#include "foundation/files/disk.h"

namespace winvrx {

/// The part of a real disk that the standard library does alike on every system.
class StandardFolders : public Disk {
  public:
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override;
    void makeFolder(const std::filesystem::path& folder) override;
};

}  // namespace winvrx
