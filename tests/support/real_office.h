#pragma once

#ifndef _WIN32

#include "tests/support/writing_commands.h"

#include <filesystem>
#include <functional>

#include <sys/types.h>

namespace winvrx::testing {

/// A folder of the real disk that is gone at the end.
class ScratchFolder {
  public:
    explicit ScratchFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path());
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// Makes `files` the whole content of the folder.
void fill(const std::filesystem::path& root, const FileTable& files);

/// Every file below the folder but locks.
[[nodiscard]] FileTable recordsBelow(const std::filesystem::path& root);

/// A process that does `work` and ends with 0, or with 1 when it returns false or throws. Who
/// starts it waits for it.
[[nodiscard]] pid_t startProcess(const std::function<bool()>& work);

/// The exit status; -1 when it was killed.
int waitFor(pid_t process);

}  // namespace winvrx::testing

#endif
