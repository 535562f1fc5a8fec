#ifndef _WIN32

#include "tests/support/real_office.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace winvrx::testing {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder(const fs::path& parent) {
    std::string pattern = (parent / "winvrx-office-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) throw std::runtime_error("no folder " + pattern);
    path_ = pattern;
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

pid_t startProcess(const std::function<bool()>& work) {
    const pid_t process = ::fork();
    if (process < 0) throw std::runtime_error("no process");
    if (process > 0) return process;
    bool done = false;
    try {
        done = work();
    } catch (...) {
        done = false;
    }
    ::_exit(done ? 0 : 1);
}

int waitFor(pid_t process) {
    int status = 0;
    if (::waitpid(process, &status, 0) != process) throw std::runtime_error("process is lost");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace winvrx::testing

#endif
