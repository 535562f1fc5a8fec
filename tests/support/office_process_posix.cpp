#ifndef _WIN32

#include "tests/support/real_office.h"

#include <stdexcept>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace winvrx::testing {

namespace {

pid_t start(const std::function<bool()>& work) {
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

}  // namespace

struct OfficeProcess::Handle {
    pid_t process;
};

OfficeProcess::OfficeProcess(const std::string& work, const std::filesystem::path& root)
    : handle_(std::make_unique<Handle>(Handle{start([&] { return doWork(work, root); })})) {}

OfficeProcess::~OfficeProcess() = default;

int OfficeProcess::wait() {
    return waitFor(handle_->process);
}

void OfficeProcess::kill() {
    ::kill(handle_->process, SIGKILL);
}

int inOwnProcess(const std::function<bool()>& work) {
    return waitFor(start(work));
}

}  // namespace winvrx::testing

#endif
