#pragma once

#include "foundation/desk/command.h"
#include "tests/support/commands/filled_office.h"
#include "tests/support/memory_disk.h"
#include "tests/support/test_workplace.h"

#include <functional>
#include <iosfwd>
#include <set>
#include <string>
#include <vector>

namespace winvrx::testing {

/// One writing command of the program, given in a freshly started program at a filled office.
/// Everything that writes records has an entry; the trials of the disk run them all.
struct WritingCommand {
    std::string name;
    FileTable before;
    /// Opens the screen and gives the command. True when it was carried out.
    std::function<bool(const Workplace& at, const Drives& drives)> run;
    /// Texts that the operator refuses; everything else is agreed to.
    std::set<std::string> refused = {};
};

/// For the names of test cases: "delete_company".
void PrintTo(const WritingCommand& command, std::ostream* out);

/// The entries by subject.
[[nodiscard]] std::vector<WritingCommand> registerCommands();
[[nodiscard]] std::vector<WritingCommand> listCommands();
[[nodiscard]] std::vector<WritingCommand> menuCommands();
[[nodiscard]] std::vector<WritingCommand> monthCommands();
[[nodiscard]] std::vector<WritingCommand> cardCommands();
[[nodiscard]] std::vector<WritingCommand> printCommands();
[[nodiscard]] std::vector<WritingCommand> leaveCommands();
[[nodiscard]] std::vector<WritingCommand> rotationCommands();
[[nodiscard]] std::vector<WritingCommand> payrollCommands();
[[nodiscard]] std::vector<WritingCommand> contractCommands();
[[nodiscard]] std::vector<WritingCommand> internetCommands();
[[nodiscard]] std::vector<WritingCommand> documentCommands();
[[nodiscard]] std::vector<WritingCommand> vacationCommands();

[[nodiscard]] const std::vector<WritingCommand>& writingCommands();
[[nodiscard]] const WritingCommand& writingCommand(const std::string& name);

/// Drive "C" is a folder; "D" one beside it.
class FolderDrives final : public Drives {
  public:
    explicit FolderDrives(std::filesystem::path root) : root_(std::move(root)) {}
    [[nodiscard]] std::filesystem::path root(char letter) const override {
        if (letter == 'C') return root_;
        return letter == 'D' ? root_ / "D" : std::filesystem::path();
    }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'D'}; }

  private:
    std::filesystem::path root_;
};

/// What a run of a command came to.
struct Outcome {
    bool done = false;  ///< carried out, and nobody was told of a failure
    std::vector<Message> failures;
    std::vector<std::string> logged;
};

/// Runs the command in a fresh program on this disk.
[[nodiscard]] Outcome runCommand(const WritingCommand& command, Disk& disk, Host& host,
                                 const std::filesystem::path& root);

/// Starts the program as after a crash: what was left half-written is gone afterwards.
[[nodiscard]] Outcome startAgain(Disk& disk, Host& host, const std::filesystem::path& root);

/// What the command makes of its files when nothing fails.
[[nodiscard]] FileTable filesAfter(const WritingCommand& command);

/// What is wrong with the files after a command that was cut short: each must be the one before or
/// the one after, whole. Empty when nothing is wrong.
[[nodiscard]] std::string neitherBeforeNorAfter(const FileTable& now, const FileTable& before,
                                                const FileTable& after);

/// The paths made absolute under `root`, and back. Locks and safety copies are no
/// records and are left out.
[[nodiscard]] MemoryDisk::Files placed(const FileTable& files, const std::filesystem::path& root);
[[nodiscard]] FileTable recordsOf(const MemoryDisk::Files& files,
                                  const std::filesystem::path& root);

}  // namespace winvrx::testing
