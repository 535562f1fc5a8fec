#pragma once

#include "tests/support/real_office.h"

#include <filesystem>
#include <functional>
#include <string>

// Real folders where writing fails. Linux makes them itself; on Windows they are made before the
// test is started, and named to it by two environment variables:
//
//     WINVRX_SMALL_DISK    a folder on a disk with room for some 256 kB
//     WINVRX_READ_ONLY     the same folder under a path where nothing may be written
//
// A trial without them fails.

namespace winvrx::testing {

/// A disk with so little room that commands fill it.
class SmallDisk {
  public:
    SmallDisk();
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] const std::filesystem::path& root() const { return scratch_.path(); }
    /// How it gets full.
    [[nodiscard]] std::string kind() const;

    /// Runs `work` where the disk is full past `room` bytes. False when it returns false or throws.
    bool withRoom(std::size_t room, const std::function<bool()>& work);

  private:
    ScratchFolder scratch_;
    bool mounted_ = false;
};

/// Runs `work` on a folder of these files that can only be read. False when it returns false or
/// throws, and when a file is no longer what it was.
bool onReadOnlyFolder(const FileTable& files,
                      const std::function<bool(const std::filesystem::path& root)>& work);

}  // namespace winvrx::testing
