#pragma once

#include "foundation/files/data_folder.h"

#include <map>

namespace winvrx {

/// The drives of this computer. On Windows the letters themselves. Elsewhere "C" is a folder of
/// the user's own data, and mounted removable volumes take the letters from "D" on in the order
/// of their mount points.
class SystemDrives final : public Drives {
  public:
    [[nodiscard]] std::filesystem::path root(char letter) const override;
    [[nodiscard]] std::vector<char> letters() const override;

  private:
    [[nodiscard]] static std::map<char, std::filesystem::path> all();
};

/// "C" is the given folder; there is no other drive.
class FolderDrives final : public Drives {
  public:
    explicit FolderDrives(std::filesystem::path root) : root_(std::move(root)) {}
    [[nodiscard]] std::filesystem::path root(char letter) const override {
        return letter == kDefaultDrive ? root_ : std::filesystem::path();
    }
    [[nodiscard]] std::vector<char> letters() const override { return {kDefaultDrive}; }

  private:
    std::filesystem::path root_;
};

}  // namespace winvrx
