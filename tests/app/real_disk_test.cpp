#include "tests/support/trial_disks.h"

#include <gmock/gmock.h>

#include <iostream>

// The writing commands on real files: on a full disk, and in a folder that can only be read.

namespace winvrx {
namespace {

using namespace testing;

TEST(FullDisk, IsToldAndLeavesEachFileWhole) {
    SmallDisk disk;
    int refused = 0;
    for (const WritingCommand& command : writingCommands()) {
        const FileTable after = filesAfter(command);
        for (const std::size_t room : {0U, 100U, 4096U, 8192U, 16384U}) {
            SCOPED_TRACE(command.name + ", room for " + std::to_string(room));
            fill(disk.root(), command.before);
            const bool done =
                disk.withRoom(room, [&] { return runOnSystemDisk(command, disk.root()); });
            refused += !done;
            if (done) {
                EXPECT_EQ(recordsBelow(disk.root()), after);
            }
            expectWholeAndRepeatable(command, after, disk.root());
            if (HasFailure()) return;
        }
    }
    std::cout << disk.kind() << ": " << refused << " commands refused\n";
    EXPECT_GE(refused, static_cast<int>(writingCommands().size()) / 2);
}

TEST(ReadOnlyFolder, IsToldAndLeftAsItIs) {
    for (const WritingCommand& command : writingCommands()) {
        if (command.name == "first start") continue;  // has no folder yet
        SCOPED_TRACE(command.name);
        EXPECT_TRUE(onReadOnlyFolder(command.before, [&](const std::filesystem::path& root) {
            const auto disk = systemDisk();
            const auto host = systemHost();
            const Outcome outcome = runCommand(command, *disk, *host, root);
            return !outcome.done && !outcome.failures.empty() &&
                   outcome.failures[0].detail.find("não há permissão") != std::string::npos;
        }));
    }
}

}  // namespace
}  // namespace winvrx
