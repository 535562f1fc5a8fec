#pragma once

#include "tests/support/watched_files.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace winvrx::testing {

/// Remembers each use of a path outside one folder.
class FencedFiles final : public WatchedFiles {
  public:
    FencedFiles(FileSystem& files, std::filesystem::path folder)
        : WatchedFiles(files), folder_(std::move(folder)) {}

    [[nodiscard]] const std::vector<std::string>& trespasses() const { return trespasses_; }

  private:
    void atFile(const char*, const std::filesystem::path& file) const override {
        const std::string path = file.string();
        const bool inside = file.lexically_normal() == file && file.parent_path() == folder_;
        if (!inside || path.find('\0') != std::string::npos) trespasses_.push_back(path);
    }
    void atFolder(const char* act, const std::filesystem::path& folder) const override {
        atFile(act, folder / "any");
    }

    std::filesystem::path folder_;
    mutable std::vector<std::string> trespasses_;
};

}  // namespace winvrx::testing
