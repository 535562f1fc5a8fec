#ifndef _WIN32

#include "foundation/register/empresa.h"
#include "tests/support/employee_desk.h"
#include "tests/support/real_office.h"

#include <gmock/gmock.h>

#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>
#include <chrono>
#include <fstream>
#include <random>
#include <thread>

// The writing commands on real files: killed at any instant, on a full disk, in a folder that can
// only be read, and by two processes at once.

namespace winvrx {
namespace {

using namespace testing;
namespace fs = std::filesystem;

bool runOnSystemDisk(const WritingCommand& command, const fs::path& root) {
    const auto disk = systemDisk();
    const auto host = systemHost();
    return runCommand(command, *disk, *host, root).done;
}

/// Starts the program again, and gives the command again if it has not ended.
void expectWholeAndRepeatable(const WritingCommand& command, const FileTable& after,
                              const fs::path& root) {
    const auto disk = systemDisk();
    const auto host = systemHost();
    EXPECT_TRUE(startAgain(*disk, *host, root).done);
    const FileTable now = recordsBelow(root);
    ASSERT_EQ(neitherBeforeNorAfter(now, command.before, after), "");
    if (now == after) return;
    EXPECT_TRUE(runCommand(command, *disk, *host, root).done);
    EXPECT_EQ(recordsBelow(root), after);
}

class Killer {
  public:
    explicit Killer(unsigned seed) : dice_(seed) {}

    /// Kills a process that gives the command within its usual length. False when it had ended.
    bool kill(const WritingCommand& command, const fs::path& root) {
        fill(root, command.before);
        const pid_t process = startProcess([&] { return runOnSystemDisk(command, root); });
        std::this_thread::sleep_for(instantWithin(lengthOf(command)));
        ::kill(process, SIGKILL);
        return waitFor(process) < 0;
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
        waitFor(startProcess([&] { return runOnSystemDisk(command, scratch.path()); }));
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
        const bool done = waitFor(startProcess([&] {
                              if (!mounted_) limitFiles(room);
                              return work();
                          })) == 0;
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
    return waitFor(startProcess([&] {
               if (::geteuid() == 0 && ::setuid(kNobody) != 0) return false;
               return work();
           })) == 0;
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

/// Counts up to `kTurns` in an employee's notes that only this process writes, and in the telephone
/// of the company that both write. A count that is not as it was left has been lost.
constexpr int kTurns = 500;

bool countsUp(const Workplace& at, std::size_t position) {
    for (int turn = 0; turn < kTurns; ++turn) {
        TestEditor editor;
        TestSpreadsheet spreadsheet;
        TestLocks locks;
        Empregados people(at, {editor, spreadsheet, locks, locks});
        people.load();
        Employee mine = people.lines().at(position).record;
        if (mine.notes != std::to_string(turn)) return false;
        mine.notes = std::to_string(turn + 1);
        if (!people.change(position, mine)) return false;

        Empresa companies(at);
        bool counted = false;
        while (!counted) {  // refused when the other process was there since it was shown
            companies.load();
            Company shared = companies.lines().at(0).record;
            shared.telephone = std::to_string(std::stoi(shared.telephone) + 1);
            counted = companies.change(0, shared);
        }
    }
    return true;
}

TEST(TwoProcesses, WriteToOneListFiveHundredTimesEachAndLoseNothing) {
    // In memory, where no flush keeps them from meeting often.
    const ScratchFolder scratch(fs::is_directory("/dev/shm") ? "/dev/shm"
                                                             : fs::temp_directory_path());
    WritingCommand start = writingCommand("change company");
    start.run = [](const Workplace& at, const Drives&) {
        Empresa companies(at);
        companies.load();
        Company zero = companies.lines().at(0).record;
        zero.telephone = "0";
        TestEditor editor;
        TestSpreadsheet spreadsheet;
        TestLocks locks;
        Empregados people(at, {editor, spreadsheet, locks, locks});
        people.load();
        bool done = companies.change(0, zero);
        for (const std::size_t position : {0U, 1U}) {
            Employee one = people.lines().at(position).record;
            one.notes = "0";
            done = done && people.change(position, one);
        }
        return done;
    };
    fill(scratch.path(), start.before);
    ASSERT_TRUE(runOnSystemDisk(start, scratch.path()));
    std::vector<pid_t> processes;
    for (const std::size_t position : {0U, 1U})
        processes.push_back(startProcess([&] {
            bool done = false;
            const WritingCommand count{"count", {}, [&](const Workplace& at, const Drives&) {
                                           return done = countsUp(at, position);
                                       }};
            (void)runOnSystemDisk(count, scratch.path());
            return done;
        }));
    for (const pid_t process : processes)
        EXPECT_EQ(waitFor(process), 0);
    const FileTable now = recordsBelow(scratch.path());
    const auto companies = splitLines(now.at(inDataFolder("01Empresa")));
    EXPECT_EQ(decode<Company>(companies.at(0)).telephone, std::to_string(2 * kTurns));
    const auto people = splitLines(now.at(inDataFolder("01CartaPonto")));
    EXPECT_EQ(decode<Employee>(people.at(0)).notes, std::to_string(kTurns));
    EXPECT_EQ(decode<Employee>(people.at(1)).notes, std::to_string(kTurns));
    EXPECT_EQ(people.size(), 3U);
}

}  // namespace
}  // namespace winvrx

#endif
