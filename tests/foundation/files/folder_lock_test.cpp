#include "foundation/files/folder_lock.h"

#include "foundation/values/faults.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::MemoryDisk;
using testing::TestHost;

const std::filesystem::path kFolder = "/data";
const std::filesystem::path kLock = kFolder / kFolderLockName;
const Clock::Moment kNow{*parseDate("15/03/2024"), *parseTime("10:20")};

class FolderLockTest : public ::testing::Test {
  protected:
    MemoryDisk disk;
    TestHost host;
    FolderLock lock{disk, host};
    std::vector<std::string> asked;
    bool agrees = false;

    FolderLock::Hold take() {
        return lock.take(kFolder, kNow, [this](const LockHolder& holder) {
            asked.push_back(holder.description());
            return agrees;
        });
    }
    /// What the operator reads when the folder cannot be had.
    std::string refusal() {
        try {
            const auto hold = take();
        } catch (const Fault& fault) {
            return fault.explanation();
        }
        return {};
    }
    void leave(const LockHolder& holder) { disk.write(kLock, encode(holder)); }
};

TEST_F(FolderLockTest, HoldsUntilTheLastOfNestedHoldsEnds) {
    {
        const auto outer = take();
        { const auto inner = take(); }
        const auto holder = decodeLock(disk.read(kLock).value());
        ASSERT_TRUE(holder);
        EXPECT_EQ(holder->description(), "ana, no computador BALCAO, desde 15/03/2024 10:20");
    }
    EXPECT_THAT(disk.files(), IsEmpty());
}

TEST_F(FolderLockTest, WaitsForAnotherWriterAndNamesIt) {
    leave({"BALCAO", "rui", "200", "15/03/2024 10:19", "1"});
    host.running.insert("200");
    EXPECT_EQ(refusal(),
              "A pasta de dados está em uso por rui, no computador BALCAO, desde 15/03/2024 10:19. "
              "Tente novamente.");
    EXPECT_GE(host.paused, std::chrono::seconds(3));
    EXPECT_TRUE(disk.exists(kLock));

    host.onPause = [this] { disk.remove(kLock); };
    EXPECT_EQ(refusal(), "");
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_THAT(disk.files(), IsEmpty());
}

TEST_F(FolderLockTest, TakesOverAtOnceWhatAProcessOfThisComputerLeft) {
    for (const std::string process : {"200", "100"}) {
        leave({"BALCAO", "rui", process, "14/03/2024 18:00", "1"});
        EXPECT_EQ(refusal(), "") << process;
        EXPECT_LT(host.paused, std::chrono::milliseconds(100)) << process;
        EXPECT_THAT(disk.files(), IsEmpty()) << process;
    }
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(FolderLockTest, AsksBeforeItTakesOverWhatAnotherComputerLeft) {
    leave({"CAIXA", "rui", "100", "14/03/2024 18:00", "1"});
    EXPECT_THAT(refusal(), HasSubstr("em uso por rui, no computador CAIXA"));
    EXPECT_TRUE(disk.exists(kLock));
    agrees = true;
    EXPECT_EQ(refusal(), "");
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_THAT(disk.files(), IsEmpty());
}

TEST_F(FolderLockTest, TakesOverAfterTheWaitWhatAPowerCutLeftWithoutAHolder) {
    const std::string whole = encode({"CAIXA", "rui", "100", "14/03/2024 18:00", "1"});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        disk.write(kLock, whole.substr(0, length));
        host.paused = {};
        EXPECT_EQ(refusal(), "") << length;
        EXPECT_GE(host.paused, std::chrono::seconds(3));
        EXPECT_THAT(disk.files(), IsEmpty()) << length;
    }
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(FolderLockTest, DoesNotAskWhileTheOthersKeepWriting) {
    int round = 0;
    host.onPause = [&] { leave({"CAIXA", "rui", "7", "15/03/2024", std::to_string(++round)}); };
    host.onPause();
    agrees = true;
    EXPECT_THAT(refusal(), HasSubstr("CAIXA"));
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(FolderLockTest, ATakeOverThatWasCutShortIsFinishedByTheNext) {
    const LockHolder gone{"BALCAO", "rui", "200", "14/03/2024 18:00", "1"};
    leave(gone);
    disk.write(kFolder / "retomada-da-pasta.winvrx-lock", encode(gone));
    EXPECT_EQ(refusal(), "");
    EXPECT_THAT(disk.files(), IsEmpty());

    // Its name cut short, too, as a power cut leaves it.
    leave(gone);
    disk.write(kFolder / "retomada-da-pasta.winvrx-lock", "");
    EXPECT_EQ(refusal(), "");
    EXPECT_THAT(disk.files(), IsEmpty());
}

TEST_F(FolderLockTest, OfTwoWhoTakeOverOneGetsTheFolder) {
    leave({"BALCAO", "rui", "300", "14/03/2024 18:00", "1"});
    TestHost otherHost;
    otherHost.own = "200";
    host.running = otherHost.running = {"100", "200"};
    FolderLock other(disk, otherHost);
    const auto hold = other.take(kFolder, kNow, [](const LockHolder&) { return false; });
    EXPECT_THAT(refusal(), HasSubstr("em uso por ana"));
}

TEST_F(FolderLockTest, LeavesALockThatWasTakenFromIt) {
    const LockHolder other{"CAIXA", "rui", "7", "15/03/2024 10:30", "1"};
    {
        const auto hold = take();
        leave(other);
    }
    EXPECT_EQ(disk.read(kLock), encode(other));
}

TEST(SystemHost, KnowsThisProcessAndNotOneThatIsGone) {
    const auto host = systemHost();
    EXPECT_FALSE(host->machine().empty());
    EXPECT_FALSE(host->user().empty());
    EXPECT_TRUE(host->runs(host->process()));
    // A later process of the same number.
    EXPECT_FALSE(host->runs(host->process() + "0"));
    EXPECT_FALSE(host->runs("999999999 1 x"));
    EXPECT_TRUE(host->runs("unreadable"));
}

}  // namespace
}  // namespace winvrx
