#pragma once

#include "foundation/files/disk.h"
#include "foundation/files/file_faults.h"
#include "foundation/files/host.h"
#include "foundation/values/clock.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// One writer at a time in a data folder that several computers share. Who writes leaves a file in
// the folder for the length of a command, one value a line:
//
//     CAIXA-2                      machine
//     ana                          user
//     4711 88231 6f0c0d4e-…        process
//     21/11/2026 08:40             since when
//     3                            which hold of that process
//
// The file is made by an exclusive creation, so that one of two gets it. Reading needs no lock.

namespace winvrx {

/// Ends the names of a folder's locks. They are no records and are not listed among them.
inline constexpr std::string_view kLockSuffix = ".winvrx-lock";
inline constexpr std::string_view kFolderLockName = "pasta-em-uso.winvrx-lock";

/// What a lock says of who holds it.
struct LockHolder {
    std::string machine;
    std::string user;
    std::string process;
    std::string since;
    std::string serial;

    /// "ana, no computador CAIXA-2, desde 21/11/2026 08:40".
    [[nodiscard]] std::string description() const;
};

/// Another writer has the folder.
class FolderInUse : public Fault {
  public:
    FolderInUse(const std::filesystem::path& folder, const std::string& who);
};

[[nodiscard]] std::string encode(const LockHolder& holder);
/// nullopt for a lock that was cut short.
[[nodiscard]] std::optional<LockHolder> decodeLock(std::string_view bytes);

/// Takes and frees the locks of data folders for one process. A folder may be taken again while it
/// is held; it is free when the last hold ends. Disk and host outlive the lock.
class FolderLock {
  public:
    FolderLock(Disk& disk, Host& host) : disk_(disk), host_(host) {}
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// The folder is this process's own while a hold lives. A lock that cannot be removed at the
    /// end is taken over by the next hold of this process, or by others when it has ended.
    class Hold {
      public:
        Hold(Hold&& other) noexcept
            : lock_(std::exchange(other.lock_, nullptr)), file_(std::move(other.file_)) {}
        Hold& operator=(Hold&&) = delete;
        ~Hold() {
            if (lock_) lock_->release(file_);
        }

      private:
        friend class FolderLock;
        Hold(FolderLock& lock, std::filesystem::path file) : lock_(&lock), file_(std::move(file)) {}

        FolderLock* lock_;
        std::filesystem::path file_;
    };

    /// Asked whether the lock of another computer may be taken over.
    using Question = std::function<bool(const LockHolder&)>;

    /// Waits a few seconds for another holder. A lock left by a process of this computer is taken
    /// over at once, one that a power cut left without a holder after the wait, and one of another
    /// computer that has not changed while we waited when `question` says so. Throws FolderInUse;
    /// FileFault.
    [[nodiscard]] Hold take(const std::filesystem::path& folder, Clock::Moment since,
                            const Question& question);

  private:
    void giveWay(const std::filesystem::path& folder);
    [[nodiscard]] std::optional<Hold> tryTake(const std::filesystem::path& folder,
                                              Clock::Moment since);
    [[nodiscard]] bool create(const std::filesystem::path& file, Clock::Moment since);
    /// True when the process that made the lock is gone, or is this one.
    [[nodiscard]] bool isLeft(std::string_view bytes) const;
    [[nodiscard]] bool mayTakeOver(std::string_view bytes, const Question& question) const;
    void removeLeft(const std::filesystem::path& folder, std::string_view bytes,
                    Clock::Moment since);
    [[nodiscard]] Hold hold(const std::filesystem::path& file);
    void release(const std::filesystem::path& file) noexcept;

    Disk& disk_;
    Host& host_;
    std::map<std::filesystem::path, int> held_;  ///< by lock file: how many holds live
    std::chrono::steady_clock::time_point released_{};
    int serial_ = 0;
};

}  // namespace winvrx
