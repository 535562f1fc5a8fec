#include "tests/support/commands/writing_commands.h"

#include "foundation/copies/safety_copies.h"
#include "foundation/files/durable_files.h"
#include "foundation/files/record_names.h"
#include "foundation/menu/menu.h"
#include "tests/support/plain_archiver.h"

#include <ostream>
#include <stdexcept>

namespace winvrx::testing {

namespace {

using std::filesystem::path;

/// Agrees to everything but what is to be refused.
class AgreeingOperator final : public Operator {
  public:
    explicit AgreeingOperator(const std::set<std::string>& refused) : refused_(refused) {}

    std::vector<Message> failures;

    Answer ask(const Message& message) override {
        if (message.icon == Icon::Critical) failures.push_back(message);
        const bool refuse = refused_.contains(message.text);
        if (message.buttons == Buttons::Ok || message.buttons == Buttons::OkCancel)
            return refuse ? Answer::Cancel : Answer::Ok;
        return refuse ? Answer::No : Answer::Yes;
    }

  private:
    const std::set<std::string>& refused_;
};

}  // namespace

void PrintTo(const WritingCommand& command, std::ostream* out) {
    for (const char c : command.name)
        *out << (c == ' ' ? '_' : c);
}

const std::vector<WritingCommand>& writingCommands() {
    static const std::vector<WritingCommand> commands = [] {
        std::vector<WritingCommand> all;
        for (const auto& part :
             {registerCommands(), listCommands(), menuCommands(), monthCommands(), cardCommands(),
              printCommands(), leaveCommands(), rotationCommands(), payrollCommands(),
              contractCommands(), internetCommands(), documentCommands(), vacationCommands()})
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }();
    return commands;
}

const WritingCommand& writingCommand(const std::string& name) {
    for (const WritingCommand& command : writingCommands())
        if (command.name == name) return command;
    throw std::invalid_argument("no command " + name);
}

Outcome runCommand(const WritingCommand& command, Disk& disk, Host& host, const path& root) {
    DurableFiles files(std::shared_ptr<Disk>(&disk, [](Disk*) {}));
    AgreeingOperator person(command.refused);
    const FixedClock clock{{*parseDate("15/03/2024"), *parseTime("10:20")}};
    RecordedLog log;
    Session session{.folder = DataFolder('C', root / kDataPath),
                    .company = CompanyCode::parse("01")};
    FolderLock lock(disk, host);
    const PlainArchiver archiver;
    SafetyCopies copies(files, archiver, log);
    const auto keepState = [&](const std::string& act) {
        copies.makeCopyBefore(session.folder, clock.now(), act);
    };
    const bool done = command.run(Workplace{files, person, clock, log, session, lock, keepState},
                                  FolderDrives(root));
    return {done && person.failures.empty() && log.entries.empty(), person.failures, log.entries};
}

FileTable filesAfter(const WritingCommand& command) {
    const path root = "/root";
    MemoryDisk disk(placed(command.before, root));
    TestHost host;
    if (!runCommand(command, disk, host, root).done)
        throw std::logic_error(command.name + " fails on a sound disk");
    return recordsOf(disk.files(), root);
}

std::string neitherBeforeNorAfter(const FileTable& now, const FileTable& before,
                                  const FileTable& after) {
    std::set<std::string> names;
    for (const FileTable* table : {&now, &before, &after})
        for (const auto& [name, bytes] : *table)
            names.insert(name);
    const auto content = [](const FileTable& table, const std::string& name) {
        const auto found = table.find(name);
        return found == table.end() ? std::nullopt : std::optional(found->second);
    };
    std::string wrong;
    for (const std::string& name : names) {
        const auto bytes = content(now, name);
        if (bytes == content(before, name) || bytes == content(after, name)) continue;
        wrong += name + (bytes ? " holds " + *bytes : " is gone") + "\n";
    }
    return wrong;
}

MemoryDisk::Files placed(const FileTable& files, const path& root) {
    MemoryDisk::Files all;
    for (const auto& [name, bytes] : files)
        all[root / name] = bytes;
    return all;
}

/// The mark of what is under way is no record: that of a move goes with the next one that writes
/// the list, that of earlier data with these.
bool isMark(const path& file) {
    return file.filename().string().find(kTransferStem) == CompanyCode::kDigits ||
           file.filename() == kEarlierNoteName;
}

FileTable recordsOf(const MemoryDisk::Files& files, const path& root) {
    FileTable table;
    for (const auto& [file, bytes] : files)
        if (!file.string().ends_with(kLockSuffix) &&
            file.parent_path().filename() != kCopiesSubfolder && !isMark(file))
            table[file.lexically_relative(root).generic_string()] = bytes;
    return table;
}

}  // namespace winvrx::testing
