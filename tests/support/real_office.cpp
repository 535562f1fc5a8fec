#include "tests/support/real_office.h"

#include "foundation/register/empresa.h"
#include "tests/support/employee_desk.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace winvrx::testing {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder(const fs::path& parent) {
    std::random_device dice;
    do
        path_ = parent / ("winvrx-office-" + std::to_string(dice()));
    while (!fs::create_directory(path_));
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void fill(const fs::path& root, const FileTable& files) {
    for (const auto& entry : fs::directory_iterator(root))
        fs::remove_all(entry.path());
    for (const auto& [name, bytes] : files) {
        fs::create_directories((root / name).parent_path());
        std::ofstream out(root / name, std::ios::binary);
        if (!(out << bytes).flush()) throw std::runtime_error("cannot write " + name);
    }
}

FileTable recordsBelow(const fs::path& root) {
    MemoryDisk::Files files;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream in(entry.path(), std::ios::binary);
        files[entry.path()] = std::string(std::istreambuf_iterator<char>(in), {});
    }
    return recordsOf(files, root);
}

bool runOnSystemDisk(const WritingCommand& command, const fs::path& root) {
    const auto disk = systemDisk();
    const auto host = systemHost();
    return runCommand(command, *disk, *host, root).done;
}

bool countUp(const Workplace& at, std::size_t position) {
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

bool doWork(const std::string& work, const fs::path& root) {
    if (!work.starts_with("count ")) return runOnSystemDisk(writingCommand(work), root);
    bool done = false;
    const WritingCommand count{"count", {}, [&](const Workplace& at, const Drives&) {
                                   return done = countUp(at, work.back() == '1' ? 1 : 0);
                               }};
    (void)runOnSystemDisk(count, root);
    return done;
}

}  // namespace winvrx::testing
