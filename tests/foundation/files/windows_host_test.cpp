#ifdef _WIN32

#include "foundation/files/host.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>

#include <windows.h>

#include <aclapi.h>

namespace winvrx {
namespace {

constexpr DWORD kPatience = 10'000;  // milliseconds
constexpr DWORD kPause = 50;

/// A process that does nothing until it is ended.
class Sleeper {
  public:
    Sleeper() {
        std::array<wchar_t, MAX_PATH> program{};
        ::GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
        STARTUPINFOW how{};
        how.cb = sizeof(how);
        EXPECT_NE(::CreateProcessW(program.data(), nullptr, nullptr, nullptr, FALSE,
                                   CREATE_SUSPENDED, nullptr, nullptr, &how, &made_),
                  0);
        ::CloseHandle(made_.hThread);
    }
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;
    ~Sleeper() { end(); }

    [[nodiscard]] std::string number() const { return std::to_string(made_.dwProcessId); }

    /// As the process of another user is: nobody may open it.
    void hide() const {
        ACL nobody{};
        ::InitializeAcl(&nobody, sizeof(nobody), ACL_REVISION);
        EXPECT_EQ(::SetSecurityInfo(made_.hProcess, SE_KERNEL_OBJECT,
                                    DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                    nullptr, nullptr, &nobody, nullptr),
                  DWORD{ERROR_SUCCESS});
        EXPECT_EQ(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | SYNCHRONIZE, FALSE,
                                made_.dwProcessId),
                  nullptr);
        EXPECT_EQ(::GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    }

    void end() {
        if (!made_.hProcess) return;
        ::TerminateProcess(made_.hProcess, 0);
        ::WaitForSingleObject(made_.hProcess, kPatience);
        ::CloseHandle(std::exchange(made_.hProcess, nullptr));
    }

  private:
    PROCESS_INFORMATION made_{};
};

/// A lock of a session that another user has open beside this one must not be taken for left.
TEST(WindowsHost, AProcessThatMayNotBeOpenedRuns) {
    const auto host = systemHost();
    Sleeper process;
    const std::string earlier = process.number() + " 1";  // of that number, long gone
    EXPECT_TRUE(host->runs(process.number()));
    EXPECT_FALSE(host->runs(earlier));
    process.hide();
    EXPECT_TRUE(host->runs(process.number()));
    EXPECT_TRUE(host->runs(earlier)) << "nobody can tell";
    process.end();
    for (DWORD waited = 0; waited < kPatience && host->runs(process.number()); waited += kPause)
        ::Sleep(kPause);  // Windows forgets it a little later
    EXPECT_FALSE(host->runs(process.number()));
    EXPECT_TRUE(host->runs(host->process()));
}

}  // namespace
}  // namespace winvrx

#endif
