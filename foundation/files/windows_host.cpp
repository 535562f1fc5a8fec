#include "foundation/files/host.h"

#include <array>
#include <charconv>

#include <windows.h>

namespace winvrx {

namespace {

std::string utf8(const wchar_t* text, DWORD length) {
    const int wide = static_cast<int>(length);
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, wide, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, wide, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

/// What a process is called in a lock: "4711 133450918273645", its number and when it started.
std::string nameOf(DWORD number, HANDLE process) {
    FILETIME created{};
    FILETIME other{};
    if (!::GetProcessTimes(process, &created, &other, &other, &other))
        return std::to_string(number);
    const ULARGE_INTEGER start{{created.dwLowDateTime, created.dwHighDateTime}};
    return std::to_string(number) + " " + std::to_string(start.QuadPart);
}

class WindowsHost final : public Host {
  public:
    [[nodiscard]] std::string machine() const override {
        std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
        auto length = static_cast<DWORD>(name.size());
        return ::GetComputerNameW(name.data(), &length) ? utf8(name.data(), length) : "?";
    }

    [[nodiscard]] std::string user() const override {
        std::array<wchar_t, 257> name{};
        auto length = static_cast<DWORD>(name.size());
        return ::GetUserNameW(name.data(), &length) ? utf8(name.data(), length - 1) : "?";
    }

    [[nodiscard]] std::string process() const override {
        return nameOf(::GetCurrentProcessId(), ::GetCurrentProcess());
    }

    [[nodiscard]] bool runs(const std::string& process) const override {
        DWORD number = 0;
        const char* end = process.data() + process.size();
        const auto [rest, fault] = std::from_chars(process.data(), end, number);
        if (fault != std::errc()) return true;
        const HANDLE handle =
            ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | SYNCHRONIZE, FALSE, number);
        if (!handle) return ::GetLastError() != ERROR_INVALID_PARAMETER;
        const bool ended = ::WaitForSingleObject(handle, 0) == WAIT_OBJECT_0;
        const std::string now = nameOf(number, handle);
        ::CloseHandle(handle);
        const bool onlyNumbers = rest == end || now == std::to_string(number);
        return !ended && (onlyNumbers || now == process);
    }

    void pause(std::chrono::milliseconds duration) override {
        ::Sleep(static_cast<DWORD>(duration.count()));
    }
};

}  // namespace

std::unique_ptr<Host> systemHost() {
    return std::make_unique<WindowsHost>();
}

}  // namespace winvrx
