#include "tests/support/real_office.h"

#include "tests/support/shared_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace winvrx::testing {

namespace fs = std::filesystem;

void fill(const fs::path& root, const FileTable& files) {
    for (const auto& entry : fs::directory_iterator(root))
        fs::remove_all(entry.path());
    for (const auto& [name, bytes] : files) {
        fs::create_directories((root / name).parent_path());
        std::ofstream out(root / name, std::ios::binary);
        if (!(out << bytes).flush()) throw std::runtime_error("cannot write " + name);
    }
}

void fillDisk(const fs::path& file, std::size_t room) {
    std::ofstream out(file, std::ios::binary);
    const auto space = fs::space(file.parent_path()).available;
    out << std::string(space > room ? space - room : 0, 'x');
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
    if (work == "begin counting") return beginCounting(root);
    if (work == "count 0") return countUp(root, 0);
    if (work == "count 1") return countUp(root, 1);
    if (work == "is counted up") return isCountedUp(root);
    if (work == "keep folder") return keepFolder(root);
    if (work == "is kept out") return isKeptOut(root);
    if (work == "take over unasked") return takesOverUnasked(root);
    return runOnSystemDisk(writingCommand(work), root);
}

}  // namespace winvrx::testing
