#ifndef _WIN32

#include "tests/support/real_office.h"

#include <gmock/gmock.h>

#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>
#include <fstream>

// The writing commands on real files: on a full disk, and in a folder that can only be read.

namespace winvrx {
namespace {

using namespace testing;
namespace fs = std::filesystem;

/// A disk with so little room that commands fill it: a small tmpfs where it may be mounted, else a
/// limit on the size of files.
class FullDisk : public ::testing::Test {
  protected:
    void SetUp() override {
        mounted_ = ::mount("tmpfs", root().c_str(), "tmpfs", 0, "size=256k") == 0;
    }
    void TearDown() override {
        if (mounted_) ::umount(root().c_str());
    }

    [[nodiscard]] const fs::path& root() const { return scratch_.path(); }
    [[nodiscard]] bool mounted() const { return mounted_; }

    /// Runs `work` in a process that finds the disk full past `room` bytes.
    bool withRoom(std::size_t room, const std::function<bool()>& work) {
        const fs::path filler = root() / "filler";
        if (mounted_) {
            std::ofstream out(filler);
            const auto space = fs::space(root()).available;
            out << std::string(space > room ? space - room : 0, 'x');
        }
        const bool done = inOwnProcess([&] {
                              if (!mounted_) limitFiles(room);
                              return work();
                          }) == 0;
        fs::remove(filler);
        return done;
    }

  private:
    static void limitFiles(std::size_t room) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{room, room};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(1);
    }

    ScratchFolder scratch_;
    bool mounted_ = false;
};

TEST_F(FullDisk, IsToldAndLeavesEachFileWhole) {
    int refused = 0;
    for (const WritingCommand& command : writingCommands()) {
        const FileTable after = filesAfter(command);
        for (const std::size_t room : {0U, 100U, 4096U, 8192U, 16384U}) {
            SCOPED_TRACE(command.name + ", room for " + std::to_string(room));
            fill(root(), command.before);
            const bool done = withRoom(room, [&] { return runOnSystemDisk(command, root()); });
            refused += !done;
            if (done) {
                EXPECT_EQ(recordsBelow(root()), after);
            }
            expectWholeAndRepeatable(command, after, root());
            if (HasFailure()) return;
        }
    }
    std::cout << (mounted() ? "a full tmpfs" : "a limit on files") << ": " << refused
              << " commands refused\n";
    EXPECT_GE(refused, static_cast<int>(writingCommands().size()) / 2);
}

/// Runs `work` in a process to which the rights of files mean something.
bool asNobody(const std::function<bool()>& work) {
    constexpr uid_t kNobody = 65534;
    return inOwnProcess([&] {
               if (::geteuid() == 0 && ::setuid(kNobody) != 0) return false;
               return work();
           }) == 0;
}

TEST(ReadOnlyFolder, IsToldAndLeftAsItIs) {
    for (const WritingCommand& command : writingCommands()) {
        if (command.name == "first start") continue;  // has no folder yet
        SCOPED_TRACE(command.name);
        const ScratchFolder scratch;
        fill(scratch.path(), command.before);
        const FileTable before = recordsBelow(scratch.path());
        fs::permissions(scratch.path(),
                        fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
        for (const auto& entry : fs::recursive_directory_iterator(scratch.path()))
            fs::permissions(entry, entry.is_directory() ? fs::perms(0555) : fs::perms(0444));
        EXPECT_TRUE(asNobody([&] {
            const auto disk = systemDisk();
            const auto host = systemHost();
            const Outcome outcome = runCommand(command, *disk, *host, scratch.path());
            return !outcome.done && !outcome.failures.empty() &&
                   outcome.failures[0].detail.find("não há permissão") != std::string::npos;
        }));
        for (const auto& entry : fs::recursive_directory_iterator(scratch.path()))
            fs::permissions(entry, fs::perms::owner_all);
        EXPECT_EQ(recordsBelow(scratch.path()), before);
    }
}

}  // namespace
}  // namespace winvrx

#endif
