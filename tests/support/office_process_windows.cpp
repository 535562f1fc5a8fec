#ifdef _WIN32

#include "tests/support/real_office.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include <windows.h>

// Windows copies no process: the test program is started again, with the work in its environment.

namespace winvrx::testing {

namespace {

constexpr const wchar_t* kWork = L"WINVRX_WORK";
constexpr const wchar_t* kRoot = L"WINVRX_ROOT";
constexpr const wchar_t* kBegun = L"WINVRX_BEGUN";  ///< the name of the event of that
constexpr DWORD kPatience = 60'000;                 // milliseconds
constexpr UINT kKilled = 99;

std::wstring variable(const wchar_t* name) {
    std::array<wchar_t, 1024> value{};
    return {value.data(),
            ::GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()))};
}

TEST(OfficeProcess, DoesTheWorkItIsStartedFor) {
    const std::wstring work = variable(kWork);
    if (work.empty()) GTEST_SKIP() << "started by the trials of killed processes";
    const HANDLE begun = ::OpenEventW(EVENT_MODIFY_STATE, FALSE, variable(kBegun).c_str());
    ::SetEvent(begun);
    const bool done = doWork(std::filesystem::path(work).string(), variable(kRoot));
    ::ExitProcess(done ? 0 : 1);
}

}  // namespace

struct OfficeProcess::Handle {
    HANDLE process = nullptr;
};

OfficeProcess::OfficeProcess(const std::string& work, const std::filesystem::path& root)
    : handle_(std::make_unique<Handle>()) {
    static int started = 0;
    const std::wstring event = L"Local\\winvrx-begun-" + std::to_wstring(::GetCurrentProcessId()) +
                               L"-" + std::to_wstring(++started);
    const HANDLE begun = ::CreateEventW(nullptr, TRUE, FALSE, event.c_str());
    ::SetEnvironmentVariableW(kWork, std::filesystem::path(work).c_str());
    ::SetEnvironmentVariableW(kRoot, root.c_str());
    ::SetEnvironmentVariableW(kBegun, event.c_str());
    std::array<wchar_t, MAX_PATH> program{};
    ::GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
    std::wstring line = L"\"" + std::wstring(program.data()) +
                        L"\" --gtest_filter=OfficeProcess.DoesTheWorkItIsStartedFor";
    STARTUPINFOW how{};
    how.cb = sizeof(how);
    PROCESS_INFORMATION made{};
    const bool runs = ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE,
                                       CREATE_NO_WINDOW, nullptr, nullptr, &how, &made) != 0;
    ::SetEnvironmentVariableW(kWork, nullptr);
    if (!runs) throw std::runtime_error("no process");
    ::CloseHandle(made.hThread);
    handle_->process = made.hProcess;
    const bool hasBegun = ::WaitForSingleObject(begun, kPatience) == WAIT_OBJECT_0;
    ::CloseHandle(begun);
    if (!hasBegun) throw std::runtime_error("the process does not begin");
}

OfficeProcess::~OfficeProcess() {
    ::CloseHandle(handle_->process);
}

int OfficeProcess::wait() {
    ::WaitForSingleObject(handle_->process, INFINITE);
    DWORD status = 1;
    ::GetExitCodeProcess(handle_->process, &status);
    return status == kKilled ? -1 : static_cast<int>(status);
}

void OfficeProcess::kill() {
    ::TerminateProcess(handle_->process, kKilled);
}

}  // namespace winvrx::testing

#endif
