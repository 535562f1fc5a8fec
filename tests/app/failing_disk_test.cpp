#include "foundation/copies/safety_copies.h"
#include "foundation/files/durable_files.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/plain_archiver.h"

#include <gmock/gmock.h>

#include <algorithm>

// Every writing command on a disk that fails at operation 1, 2, 3 … until it fails no more.

namespace winvrx {
namespace {

using namespace testing;
using Failure = FaultyDisk::Failure;

const std::filesystem::path kRoot = "/root";

/// A later run of the program: the process before it is gone.
TestHost laterHost() {
    TestHost host;
    host.own = "200";
    host.running = {"200"};
    return host;
}

class EveryCommand : public ::testing::TestWithParam<WritingCommand> {
  protected:
    const WritingCommand& command = GetParam();
    const FileTable after = filesAfter(command);

    /// Each file is the one before or after; a start removes what lies about; the command given
    /// again ends right.
    void expectWholeAndRepeatable(MemoryDisk& disk) const {
        TestHost host = laterHost();
        EXPECT_TRUE(startAgain(disk, host, kRoot).done);
        const FileTable now = recordsOf(disk.files(), kRoot);
        ASSERT_EQ(neitherBeforeNorAfter(now, command.before, after), "");
        if (now == after) return;
        EXPECT_TRUE(runCommand(command, disk, host, kRoot).done);
        EXPECT_EQ(recordsOf(disk.files(), kRoot), after);
    }

    /// The records are those after the command; a lock that stayed keeps no later run away.
    void expectDone(MemoryDisk& disk) const {
        EXPECT_EQ(recordsOf(disk.files(), kRoot), after);
        TestHost host = laterHost();
        EXPECT_TRUE(startAgain(disk, host, kRoot).done);
    }
};

/// The operator is told, by a name that he knows, and the log names the file and the cause.
void expectTold(const Outcome& outcome, std::errc error) {
    EXPECT_FALSE(outcome.failures.empty());
    for (const Message& told : outcome.failures)
        EXPECT_THAT(told.detail,
                    ::testing::Not(::testing::AnyOf("", ::testing::HasSubstr(kTemporarySuffix),
                                                    ::testing::HasSubstr("\"\""))));
    EXPECT_THAT(outcome.logged, ::testing::Contains(::testing::AllOf(
                                    ::testing::HasSubstr(" /root"),
                                    ::testing::HasSubstr(std::make_error_code(error).message()))));
}

TEST_P(EveryCommand, LeavesEachFileWholeWhereverTheDiskFails) {
    struct Case {
        Failure failure;
        std::errc error;
    };
    for (const Case& one : {Case{Failure::Once, std::errc::io_error},
                            Case{Failure::Once, std::errc::permission_denied},
                            Case{Failure::Late, std::errc::io_error},
                            Case{Failure::ForGood, std::errc::no_space_on_device}}) {
        bool failed = true;
        for (int operation = 1; failed; ++operation) {
            SCOPED_TRACE("operation " + std::to_string(operation) + ", failure " +
                         std::to_string(static_cast<int>(one.failure)));
            MemoryDisk disk(placed(command.before, kRoot));
            FaultyDisk faulty(disk, operation, one.failure, one.error);
            TestHost host;
            const Outcome outcome = runCommand(command, faulty, host, kRoot);
            failed = faulty.failed();
            if (outcome.done) {
                expectDone(disk);
            } else {
                expectTold(outcome, one.error);
                expectWholeAndRepeatable(disk);
            }
            if (HasFailure()) return;
        }
    }
}

TEST_P(EveryCommand, LeavesEachFileWholeWhereverThePowerGoes) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        std::mt19937 dice(seed);
        bool cut = true;
        for (int operation = 1; cut; ++operation) {
            SCOPED_TRACE("operation " + std::to_string(operation) + ", dice " +
                         std::to_string(seed));
            MemoryDisk disk(placed(command.before, kRoot));
            FaultyDisk faulty(disk, operation, Failure::Power, std::errc::io_error);
            TestHost host;
            try {
                const Outcome outcome = runCommand(command, faulty, host, kRoot);
                ASSERT_TRUE(outcome.done);
                // The lock's own removal needs no flush; what was recorded lasts.
                disk.cutPower(dice);
                expectDone(disk);
            } catch (const PowerCut&) {
                disk.cutPower(dice);
                expectWholeAndRepeatable(disk);
            }
            cut = faulty.failed();
            if (HasFailure()) return;
        }
    }
}

constexpr std::pair<const char*, const char*> kKeptBefore[] = {
    {"delete company", "excluir a empresa 02 SEGUNDA"},
    {"delete all employees", "excluir toda a lista de funcionários da empresa 01 PRIMEIRA"}};

TEST(CopyBeforeADeletion, IsThereBeforeAnythingGoes) {
    for (const auto& [name, act] : kKeptBefore) {
        const WritingCommand& command = writingCommand(name);
        bool failed = true;
        for (int operation = 1; failed; ++operation) {
            MemoryDisk disk(placed(command.before, kRoot));
            FaultyDisk faulty(disk, operation, Failure::ForGood, std::errc::no_space_on_device);
            TestHost host;
            (void)runCommand(command, faulty, host, kRoot);
            failed = faulty.failed();
            const bool kept = std::ranges::any_of(
                disk.files(), [](const auto& file) { return file.first.extension() == ".zip"; });
            EXPECT_TRUE(kept || recordsOf(disk.files(), kRoot) == command.before)
                << name << ", operation " << operation;
        }
    }
}

TEST(CopyBeforeADeletion, BringsEverythingBack) {
    for (const auto& [name, act] : kKeptBefore) {
        const WritingCommand& command = writingCommand(name);
        MemoryDisk disk(placed(command.before, kRoot));
        TestHost host;
        ASSERT_TRUE(runCommand(command, disk, host, kRoot).done) << name;
        ASSERT_NE(recordsOf(disk.files(), kRoot), command.before);
        DurableFiles files(std::shared_ptr<Disk>(&disk, [](Disk*) {}));
        const PlainArchiver archiver;
        RecordedLog log;
        SafetyCopies copies(files, archiver, log);
        const DataFolder folder('C', kRoot / kDataPath);
        const Clock::Moment later{*parseDate("16/03/2024"), *parseTime("09:00")};
        const auto list = copies.list(folder, later.date);
        ASSERT_EQ(list.size(), 1U) << name;
        EXPECT_EQ(list[0].before, act);
        copies.restore(folder, list[0].name, later);
        EXPECT_EQ(recordsOf(disk.files(), kRoot), command.before) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(, EveryCommand, ::testing::ValuesIn(writingCommands()),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace winvrx
