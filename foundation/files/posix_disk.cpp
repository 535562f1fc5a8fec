#include "foundation/files/disk.h"
#include "foundation/files/file_faults.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace winvrx {

namespace {

using Operation = FileFault::Operation;
using std::filesystem::path;

/// From this many files on, one flush of the whole file system is cheaper than one a file.
constexpr std::size_t kFlushWhole = 8;

[[noreturn]] void fail(Operation operation, const path& file, int error = errno) {
    throw FileFault(operation, file, std::error_code(error, std::generic_category()));
}

/// What open() says of a link that it must not follow, and of a pipe or a socket.
[[noreturn]] void failToOpen(Operation operation, const path& file) {
    if (errno == ELOOP) throw FileFault(operation, file, FileProblem::Link);
    if (errno == ENXIO) throw FileFault(operation, file, FileProblem::NotAPlainFile);
    fail(operation, file);
}

void requirePlain(mode_t mode, Operation operation, const path& file) {
    if (S_ISREG(mode)) return;
    if (S_ISDIR(mode)) fail(operation, file, EISDIR);
    throw FileFault(operation, file,
                    S_ISLNK(mode) ? FileProblem::Link : FileProblem::NotAPlainFile);
}

class Descriptor {
  public:
    Descriptor(const path& file, int flags, mode_t mode = 0)
        : number_(::open(file.c_str(), flags | O_CLOEXEC, mode)) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool open() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] int close() {
        const int result = ::close(number_);
        number_ = -1;
        return result;
    }

  private:
    int number_;
};

void requirePlain(const Descriptor& open, Operation operation, const path& file) {
    struct stat status {};
    if (::fstat(open.number(), &status) != 0) fail(operation, file);
    requirePlain(status.st_mode, operation, file);
}

/// Counts what comes, whatever size the file is said to have: it may grow meanwhile.
std::string readToEnd(const Descriptor& in, const path& file) {
    std::string bytes;
    std::array<char, 65536> chunk;
    while (true) {
        const ssize_t count = ::read(in.number(), chunk.data(), chunk.size());
        if (count == 0) return bytes;
        if (bytes.size() + static_cast<std::size_t>(std::max<ssize_t>(count, 0)) > kLargestFile)
            throw FileFault(Operation::Read, file, FileProblem::TooLarge);
        if (count > 0)
            bytes.append(chunk.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            fail(Operation::Read, file);
    }
}

void writeAll(const Descriptor& out, std::string_view bytes, const path& file) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(out.number(), bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            fail(Operation::Write, file);
    }
}

bool isMissing(int error) {
    return error == ENOENT || error == ENOTDIR;
}

void flushOne(const path& file) {
    const Descriptor descriptor(file, O_RDONLY);
    if (!descriptor.open() || ::fsync(descriptor.number()) != 0) fail(Operation::Write, file);
}

using Folder = std::unique_ptr<DIR, int (*)(DIR*)>;

/// What stands in the folder under this name; nullopt for a folder and for what has gone meanwhile.
std::optional<ListedFile> listed(const Folder& folder, const char* name, const path& path) {
    struct stat status {};
    struct stat target {};
    const int number = ::dirfd(folder.get());
    if (::fstatat(number, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        if (!isMissing(errno)) fail(Operation::List, path);
        return std::nullopt;
    }
    const bool toFolder = S_ISLNK(status.st_mode) && ::fstatat(number, name, &target, 0) == 0 &&
                          S_ISDIR(target.st_mode);
    if (toFolder || S_ISDIR(status.st_mode)) return std::nullopt;
    return ListedFile{name, static_cast<std::uint64_t>(status.st_size),
                      std::chrono::seconds(status.st_mtim.tv_sec) +
                          std::chrono::nanoseconds(status.st_mtim.tv_nsec)};
}

class PosixDisk final : public Disk {
  public:
    [[nodiscard]] std::optional<std::string> read(const path& file) const override {
        const Descriptor in(file, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
        if (!in.open()) {
            if (isMissing(errno)) return std::nullopt;
            failToOpen(Operation::Read, file);
        }
        requirePlain(in, Operation::Read, file);
        return readToEnd(in, file);
    }

    void write(const path& file, std::string_view bytes) override {
        Descriptor out(file, O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOFOLLOW, 0666);
        if (!out.open()) failToOpen(Operation::Write, file);
        requirePlain(out, Operation::Write, file);
        writeAll(out, bytes, file);
        if (out.close() != 0) fail(Operation::Write, file);
    }

    [[nodiscard]] bool create(const path& file, std::string_view bytes) override {
        Descriptor out(file, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0666);
        if (!out.open() && errno == EEXIST) return false;
        if (!out.open()) fail(Operation::Write, file);
        try {
            writeAll(out, bytes, file);
            if (out.close() != 0) fail(Operation::Write, file);
        } catch (...) {
            ::unlink(file.c_str());
            throw;
        }
        return true;
    }

    void flush(const std::vector<path>& files) override {
#ifdef __linux__
        if (files.size() >= kFlushWhole) {
            const Descriptor any(files.front(), O_RDONLY);
            if (!any.open() || ::syncfs(any.number()) != 0) fail(Operation::Write, files.front());
            return;
        }
#endif
        for (const path& file : files)
            flushOne(file);
    }

    /// What was let go of is asked for again at once, all of it before the first read waits.
    void forget(const std::vector<path>& files) const override {
#ifdef __linux__
        for (const path& file : files) {
            const Descriptor open(file, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
            for (const int advice : {POSIX_FADV_DONTNEED, POSIX_FADV_WILLNEED})
                if (open.open()) (void)::posix_fadvise(open.number(), 0, 0, advice);
        }
#else
        (void)files;
#endif
    }

    void rename(const path& from, const path& to) override {
        struct stat status {};
        if (::lstat(to.c_str(), &status) == 0) requirePlain(status.st_mode, Operation::Write, to);
        if (::rename(from.c_str(), to.c_str()) != 0) fail(Operation::Write, to);
    }

    bool remove(const path& file) override {
        if (::unlink(file.c_str()) == 0) return true;
        if (!isMissing(errno)) fail(Operation::Remove, file);
        return false;
    }

    /// File systems that cannot flush a folder say EINVAL; there is nothing more to be done.
    void flushFolder(const path& folder) override {
        const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
        if (!descriptor.open()) fail(Operation::Write, folder);
        if (::fsync(descriptor.number()) != 0 && errno != EINVAL) fail(Operation::Write, folder);
    }

    [[nodiscard]] std::vector<ListedFile> list(const path& folder) const override {
        std::vector<ListedFile> files;
        const Folder open(::opendir(folder.c_str()), &::closedir);
        if (!open && isMissing(errno)) return files;
        if (!open) fail(Operation::List, folder);
        while (true) {
            errno = 0;
            const dirent* entry = ::readdir(open.get());
            if (!entry && errno != 0) fail(Operation::List, folder);
            if (!entry) return files;
            if (auto file = listed(open, entry->d_name, folder)) files.push_back(std::move(*file));
        }
    }

    [[nodiscard]] bool exists(const path& file) const override {
        struct stat status {};
        if (::lstat(file.c_str(), &status) == 0) return true;
        if (!isMissing(errno)) fail(Operation::Read, file);
        return false;
    }
};

}  // namespace

std::unique_ptr<Disk> systemDisk() {
    return std::make_unique<PosixDisk>();
}

}  // namespace winvrx
