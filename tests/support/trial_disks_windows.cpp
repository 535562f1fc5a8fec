#ifdef _WIN32

#include "tests/support/trial_disks.h"

#include <cstdlib>
#include <stdexcept>

namespace winvrx::testing {

namespace fs = std::filesystem;

namespace {

fs::path named(const char* variable) {
    const char* const folder = std::getenv(variable);
    if (!folder) throw std::runtime_error(std::string(variable) + " names no folder");
    return folder;
}

bool succeeds(const std::function<bool()>& work) {
    try {
        return work();
    } catch (...) {
        return false;
    }
}

}  // namespace

SmallDisk::SmallDisk() : scratch_(named("WINVRX_SMALL_DISK")), mounted_(true) {}

SmallDisk::~SmallDisk() = default;

std::string SmallDisk::kind() const {
    return "a full disk";
}

bool SmallDisk::withRoom(std::size_t room, const std::function<bool()>& work) {
    const fs::path filler = root() / "filler";
    fillDisk(filler, room);
    const bool done = succeeds(work);
    fs::remove(filler);
    return done;
}

bool onReadOnlyFolder(const FileTable& files,
                      const std::function<bool(const fs::path& root)>& work) {
    const ScratchFolder scratch(named("WINVRX_SMALL_DISK"));
    fill(scratch.path(), files);
    const FileTable before = recordsBelow(scratch.path());
    const fs::path seen = named("WINVRX_READ_ONLY") / scratch.path().filename();
    return succeeds([&] { return work(seen); }) && recordsBelow(scratch.path()) == before;
}

}  // namespace winvrx::testing

#endif
