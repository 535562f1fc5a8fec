#include "foundation/files/disk.h"
#include "foundation/files/file_faults.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include <windows.h>

namespace winvrx {

namespace {

using Operation = FileFault::Operation;
using std::filesystem::path;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kLargestPiece = 1U << 30U;

/// The system's causes, with those of drives and shares that the standard library does not know.
class WindowsCauses final : public std::error_category {
  public:
    [[nodiscard]] const char* name() const noexcept override { return "windows"; }
    [[nodiscard]] std::string message(int error) const override {
        return std::system_category().message(error);
    }
    [[nodiscard]] std::error_condition default_error_condition(int error) const noexcept override {
        switch (error) {
            case ERROR_NOT_READY:
            case ERROR_NO_MEDIA_IN_DRIVE:
            case ERROR_MEDIA_CHANGED:
            case ERROR_WRONG_DISK:
            case ERROR_DEVICE_NOT_CONNECTED:
            case ERROR_GEN_FAILURE:
            case ERROR_READ_FAULT:
            case ERROR_WRITE_FAULT:
            case ERROR_SEM_TIMEOUT:  // what a share says that does not answer
            case ERROR_REM_NOT_LIST:
            case ERROR_BAD_NETPATH:
            case ERROR_NETNAME_DELETED:
            case ERROR_NETWORK_BUSY:
            case ERROR_NETWORK_UNREACHABLE:
            case ERROR_NO_NETWORK:
                return std::errc::io_error;
            case ERROR_NETWORK_ACCESS_DENIED:
            case ERROR_LOGON_FAILURE:
                return std::errc::permission_denied;
            case ERROR_USER_MAPPED_FILE:
                return std::errc::device_or_resource_busy;
            default:
                return std::system_category().default_error_condition(error);
        }
    }
};

[[noreturn]] void fail(Operation operation, const path& file, DWORD error = ::GetLastError()) {
    static const WindowsCauses causes;
    throw FileFault(operation, file, {static_cast<int>(error), causes});
}

bool isMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool isTaken(DWORD error) {
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
}

/// Virus scanners, indexers and backup programs hold a file for a moment after it was written.
bool isHeld(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_ACCESS_DENIED;
}

/// Tries again for a second while another program holds the file; GetLastError() says why not.
template <typename Work>
bool doneWhenFree(const Work& work) {
    constexpr int kTries = 20;
    constexpr DWORD kPause = 50;  // milliseconds
    for (int left = kTries;;) {
        if (work()) return true;
        if (--left == 0 || !isHeld(::GetLastError())) return false;
        ::Sleep(kPause);
    }
}

/// Refuses at once what no waiting makes a file that may be used. Of links only true ones: the
/// placeholders of a folder kept in the cloud are reparse points as well.
void requirePlain(Operation operation, const path& file) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(file.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    ::FindClose(search);
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
        found.dwReserved0 == IO_REPARSE_TAG_SYMLINK)
        throw FileFault(operation, file, FileProblem::Link);
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        throw FileFault(operation, file, std::make_error_code(std::errc::is_a_directory));
    if (operation == Operation::Write && (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0)
        fail(operation, file, ERROR_ACCESS_DENIED);
}

class Handle {
  public:
    Handle(const path& file, DWORD access, DWORD disposition) {
        (void)doneWhenFree([&] {
            handle_ = ::CreateFileW(file.c_str(), access, kShareAll, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
            return open();
        });
    }
    ~Handle() {
        if (open()) ::CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    [[nodiscard]] bool open() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return handle_; }

  private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

void writeAll(const Handle& out, std::string_view bytes, const path& file) {
    while (!bytes.empty()) {
        DWORD count = 0;
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), kLargestPiece));
        if (!::WriteFile(out.get(), bytes.data(), piece, &count, nullptr))
            fail(Operation::Write, file);
        bytes.remove_prefix(count);
    }
}

/// From 1601 to 1970, in the hundreds of nanoseconds that Windows counts.
constexpr std::uint64_t kTicksBefore1970 = 116'444'736'000'000'000;

std::uint64_t joined(DWORD high, DWORD low) {
    return (std::uint64_t{high} << 32U) | low;
}

ListedFile listed(const WIN32_FIND_DATAW& found) {
    const std::uint64_t ticks =
        joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime);
    return {path(found.cFileName).string(), joined(found.nFileSizeHigh, found.nFileSizeLow),
            std::chrono::nanoseconds(static_cast<std::int64_t>(ticks - kTicksBefore1970) * 100)};
}

class WindowsDisk final : public Disk {
  public:
    [[nodiscard]] std::optional<std::string> read(const path& file) const override {
        requirePlain(Operation::Read, file);
        const Handle in(file, GENERIC_READ, OPEN_EXISTING);
        if (!in.open()) {
            if (isMissing(::GetLastError())) return std::nullopt;
            fail(Operation::Read, file);
        }
        if (::GetFileType(in.get()) != FILE_TYPE_DISK)
            throw FileFault(Operation::Read, file, FileProblem::NotAPlainFile);
        std::string bytes;
        std::array<char, 65536> chunk;
        DWORD count = 0;
        do {
            if (!::ReadFile(in.get(), chunk.data(), static_cast<DWORD>(chunk.size()), &count,
                            nullptr))
                fail(Operation::Read, file);
            if (bytes.size() + count > kLargestFile)
                throw FileFault(Operation::Read, file, FileProblem::TooLarge);
            bytes.append(chunk.data(), count);
        } while (count > 0);
        return bytes;
    }

    void write(const path& file, std::string_view bytes) override {
        requirePlain(Operation::Write, file);
        const Handle out(file, GENERIC_WRITE, CREATE_ALWAYS);
        if (!out.open()) fail(Operation::Write, file);
        writeAll(out, bytes, file);
    }

    [[nodiscard]] bool create(const path& file, std::string_view bytes) override {
        bool created = false;
        try {
            const Handle out(file, GENERIC_WRITE, CREATE_NEW);
            if (!out.open() && isTaken(::GetLastError())) return false;
            if (!out.open()) fail(Operation::Write, file);
            created = true;
            writeAll(out, bytes, file);
        } catch (const FileFault&) {
            if (created) ::DeleteFileW(file.c_str());
            throw;
        }
        return true;
    }

    void flush(const std::vector<path>& files) override {
        for (const path& file : files) {
            const Handle handle(file, GENERIC_WRITE, OPEN_EXISTING);
            if (!handle.open() || !::FlushFileBuffers(handle.get())) fail(Operation::Write, file);
        }
    }

    /// Written through: the new name lasts when this returns.
    void rename(const path& from, const path& to) override {
        requirePlain(Operation::Write, to);
        constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        if (!doneWhenFree([&] { return ::MoveFileExW(from.c_str(), to.c_str(), kHow) != 0; }))
            fail(Operation::Write, to);
    }

    bool remove(const path& file) override {
        if (doneWhenFree([&] { return ::DeleteFileW(file.c_str()) != 0; })) return true;
        if (!isMissing(::GetLastError())) fail(Operation::Remove, file);
        return false;
    }

    /// Windows has no flush of a folder: renames are written through, and its file systems keep
    /// removals in their journal.
    void flushFolder(const path&) override {}

    /// For the standard library a share that does not answer is a folder that is not there.
    [[nodiscard]] std::vector<std::string> names(const path& folder) const override {
        std::vector<std::string> names;
        for (ListedFile& file : list(folder))
            names.push_back(std::move(file.name));
        return names;
    }

    [[nodiscard]] std::vector<ListedFile> list(const path& folder) const override {
        std::vector<ListedFile> files;
        WIN32_FIND_DATAW found{};
        const HANDLE search =
            ::FindFirstFileExW((folder / L"*").c_str(), FindExInfoBasic, &found,
                               FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
        if (search == INVALID_HANDLE_VALUE) {
            if (isMissing(::GetLastError())) return files;
            fail(Operation::List, folder);
        }
        do {
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
                files.push_back(listed(found));
        } while (::FindNextFileW(search, &found));
        const DWORD error = ::GetLastError();
        ::FindClose(search);
        if (error != ERROR_NO_MORE_FILES) fail(Operation::List, folder, error);
        return files;
    }

    [[nodiscard]] bool exists(const path& file) const override {
        if (::GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES) return true;
        if (!isMissing(::GetLastError())) fail(Operation::Read, file);
        return false;
    }
};

}  // namespace

std::unique_ptr<Disk> systemDisk() {
    return std::make_unique<WindowsDisk>();
}

}  // namespace winvrx
