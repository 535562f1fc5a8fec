#pragma once

#include "foundation/files/data_folder.h"

#include <filesystem>
#include <map>
#include <vector>

namespace winvrx {

/// Gives mounted volumes the letters from "D" on. A volume keeps its letter for the length of a run
/// and nobody else takes it, whatever is plugged in or pulled out meanwhile.
class VolumeLetters {
  public:
    /// The letters of the volumes that are mounted now, by their mount points. New ones take the
    /// letters that no volume has had, in the order of their mount points.
    [[nodiscard]] std::map<char, std::filesystem::path> of(
        std::vector<std::filesystem::path> mountPoints);

  private:
    std::vector<std::filesystem::path> known_;  ///< from "D" on
};

/// The drives of this computer. On Windows the letters themselves. Elsewhere "C" is a folder of
/// the user's own data, and mounted removable volumes take the letters from "D" on.
class SystemDrives final : public Drives {
  public:
    [[nodiscard]] std::filesystem::path root(char letter) const override;
    [[nodiscard]] std::vector<char> letters() const override;

  private:
    [[nodiscard]] std::map<char, std::filesystem::path> all() const;

    mutable VolumeLetters letters_;
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
