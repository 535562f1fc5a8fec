#include "tests/support/real_office.h"
#include "tests/support/shared_folder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <iostream>
#include <map>
#include <random>
#include <thread>

// The writing commands on real files: killed at any instant, and by two processes at once.

namespace winvrx {
namespace {

using namespace testing;
namespace fs = std::filesystem;

class Killer {
  public:
    explicit Killer(unsigned seed) : dice_(seed) {}

    /// Kills a process that gives the command within its usual length. False when it had ended.
    bool kill(const WritingCommand& command, const fs::path& root) {
        fill(root, command.before);
        const Length instant = instantWithin(lengthOf(command));
        OfficeProcess process(command.name, root);
        std::this_thread::sleep_for(instant);
        process.kill();
        return process.wait() < 0;
    }

  private:
    using Length = std::chrono::nanoseconds;

    Length instantWithin(Length length) {
        return Length(std::uniform_int_distribution<Length::rep>(0, length.count())(dice_));
    }

    Length lengthOf(const WritingCommand& command) {
        if (const auto known = lengths_.find(command.name); known != lengths_.end())
            return known->second;
        const ScratchFolder scratch;
        fill(scratch.path(), command.before);
        const auto start = std::chrono::steady_clock::now();
        (void)runOnSystemDisk(command, scratch.path());
        return lengths_[command.name] = std::chrono::steady_clock::now() - start;
    }

    std::mt19937 dice_;
    std::map<std::string, Length> lengths_;
};

TEST(KilledProcess, LeavesEachFileWholeInTwoHundredRounds) {
    constexpr int kRounds = 200;
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("dice " + std::to_string(seed));
    std::cout << "dice " << seed << '\n';
    Killer killer(seed);
    const auto& commands = writingCommands();
    int killed = 0;
    int cutShort = 0;
    for (int round = 0; round < kRounds && !::testing::Test::HasFailure(); ++round) {
        const WritingCommand& command = commands[static_cast<std::size_t>(round) % commands.size()];
        SCOPED_TRACE(command.name + ", round " + std::to_string(round));
        const ScratchFolder scratch;
        const FileTable after = filesAfter(command);
        const bool hit = killer.kill(command, scratch.path());
        killed += hit;
        cutShort += hit && recordsBelow(scratch.path()) != command.before;
        expectWholeAndRepeatable(command, after, scratch.path());
    }
    std::cout << killed << " killed, " << cutShort << " after something was written\n";
    EXPECT_GE(killed, kRounds / 8);
    EXPECT_GT(cutShort, 0);
}

TEST(TwoProcesses, WriteToOneListFiveHundredTimesEachAndLoseNothing) {
    // In memory, where no flush keeps them from meeting often.
    const ScratchFolder scratch(fs::is_directory("/dev/shm") ? "/dev/shm"
                                                             : fs::temp_directory_path());
    ASSERT_TRUE(beginCounting(scratch.path()));
    OfficeProcess first("count 0", scratch.path());
    OfficeProcess second("count 1", scratch.path());
    EXPECT_EQ(first.wait(), 0);
    EXPECT_EQ(second.wait(), 0);
    EXPECT_TRUE(isCountedUp(scratch.path()));
}

}  // namespace
}  // namespace winvrx
