#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace winvrx::testing {

/// A folder of the real disk that is gone at the end.
class ScratchFolder {
  public:
    explicit ScratchFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        std::random_device dice;
        do
            path_ = parent / ("winvrx-scratch-" + std::to_string(dice()));
        while (!std::filesystem::create_directory(path_));
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace winvrx::testing
