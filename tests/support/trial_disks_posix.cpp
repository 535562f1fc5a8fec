#ifndef _WIN32

#include "tests/support/trial_disks.h"

#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <signal.h>

namespace winvrx::testing {

namespace fs = std::filesystem;

namespace {

void limitFiles(std::size_t room) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{room, room};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(1);
}

/// Runs `work` in a process to which the rights of files mean something.
bool asNobody(const std::function<bool()>& work) {
    constexpr uid_t kNobody = 65534;
    return inOwnProcess([&] {
               if (::geteuid() == 0 && ::setuid(kNobody) != 0) return false;
               return work();
           }) == 0;
}

}  // namespace

/// A tmpfs where it may be mounted, else a limit on the size of files.
SmallDisk::SmallDisk() : mounted_(::mount("tmpfs", root().c_str(), "tmpfs", 0, "size=256k") == 0) {}

SmallDisk::~SmallDisk() {
    if (mounted_) ::umount(root().c_str());
}

std::string SmallDisk::kind() const {
    return mounted_ ? "a full tmpfs" : "a limit on files";
}

bool SmallDisk::withRoom(std::size_t room, const std::function<bool()>& work) {
    const fs::path filler = root() / "filler";
    if (mounted_) fillDisk(filler, room);
    const bool done = inOwnProcess([&] {
                          if (!mounted_) limitFiles(room);
                          return work();
                      }) == 0;
    fs::remove(filler);
    return done;
}

bool onReadOnlyFolder(const FileTable& files,
                      const std::function<bool(const fs::path& root)>& work) {
    const ScratchFolder scratch;
    fill(scratch.path(), files);
    const FileTable before = recordsBelow(scratch.path());
    fs::permissions(scratch.path(), fs::perms(0555));
    for (const auto& entry : fs::recursive_directory_iterator(scratch.path()))
        fs::permissions(entry, entry.is_directory() ? fs::perms(0555) : fs::perms(0444));
    const bool done = asNobody([&] { return work(scratch.path()); });
    fs::permissions(scratch.path(), fs::perms::owner_all);
    for (const auto& entry : fs::recursive_directory_iterator(scratch.path()))
        fs::permissions(entry, fs::perms::owner_all);
    return done && recordsBelow(scratch.path()) == before;
}

}  // namespace winvrx::testing

#endif
