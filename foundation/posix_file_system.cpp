#include "foundation/faults.h"
#include "foundation/file_system.h"

#include <array>
#include <cerrno>
#include <set>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace winvrx {

namespace {

using Operation = FileFault::Operation;
using std::filesystem::path;

/// Ends the name of a file that is still being written. A crash may leave one behind.
constexpr std::string_view kTemporarySuffix = ".winvrx-tmp";

[[noreturn]] void fail(Operation operation, const path& file, int error = errno) {
    throw FileFault(operation, file, std::error_code(error, std::generic_category()));
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

std::string readToEnd(const Descriptor& in, const path& file) {
    std::string bytes;
    std::array<char, 65536> chunk;
    while (true) {
        const ssize_t count = ::read(in.number(), chunk.data(), chunk.size());
        if (count == 0) return bytes;
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

/// Removes the temporary unless it was renamed into place.
class Temporary {
  public:
    explicit Temporary(const path& target)
        : name_(target.string() + std::string(kTemporarySuffix)) {}
    ~Temporary() {
        if (!renamed_) ::unlink(name_.c_str());
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void write(std::string_view bytes, const path& target) const {
        Descriptor out(name_, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, 0666);
        if (!out.open()) fail(Operation::Write, target);
        writeAll(out, bytes, target);
        if (::fsync(out.number()) != 0 || out.close() != 0) fail(Operation::Write, target);
    }

    void renameTo(const path& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0) fail(Operation::Write, target);
        renamed_ = true;
    }

  private:
    std::string name_;
    bool renamed_ = false;
};

/// Makes renames and removals in the folder last through a power cut. File systems that cannot
/// flush a folder say EINVAL; there is nothing more to be done on them.
void flushFolder(const path& folder, Operation operation) {
    Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor.open()) fail(operation, folder);
    if (::fsync(descriptor.number()) != 0 && errno != EINVAL) fail(operation, folder);
}

class PosixFileSystem final : public FileSystem {
  public:
    [[nodiscard]] std::optional<std::string> read(const path& file) const override {
        const Descriptor in(file, O_RDONLY | O_NONBLOCK);
        if (!in.open()) {
            if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
            fail(Operation::Read, file);
        }
        return readToEnd(in, file);
    }

    void replace(const path& file, std::string_view bytes) override {
        replaceUnflushed(file, bytes);
        flushFolder(file.parent_path(), Operation::Write);
    }

    void replaceAll(const std::vector<NewContent>& files) override {
        std::set<path> folders;
        for (const NewContent& content : files) {
            replaceUnflushed(content.file, content.bytes);
            folders.insert(content.file.parent_path());
        }
        for (const path& folder : folders)
            flushFolder(folder, Operation::Write);
    }

    bool remove(const path& file) override {
        if (::unlink(file.c_str()) != 0) {
            if (errno == ENOENT) return false;
            fail(Operation::Remove, file);
        }
        flushFolder(file.parent_path(), Operation::Remove);
        return true;
    }

    [[nodiscard]] bool exists(const path& file) const override {
        struct stat status {};
        if (::stat(file.c_str(), &status) == 0) return true;
        if (errno != ENOENT && errno != ENOTDIR) fail(Operation::Read, file);
        return false;
    }

    [[nodiscard]] std::vector<std::string> names(const path& folder) const override {
        std::vector<std::string> names;
        std::error_code error;
        std::filesystem::directory_iterator entry(folder, error);
        if (error == std::errc::no_such_file_or_directory) return names;
        for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
            if (!entry->is_directory(error)) names.push_back(entry->path().filename().string());
        if (error) throw FileFault(Operation::List, folder, error);
        return names;
    }

    void makeFolder(const path& folder) override {
        std::error_code error;
        std::filesystem::create_directories(folder, error);
        if (error) throw FileFault(Operation::MakeFolder, folder, error);
    }

  private:
    static void replaceUnflushed(const path& file, std::string_view bytes) {
        Temporary temporary(file);
        temporary.write(bytes, file);
        temporary.renameTo(file);
    }
};

}  // namespace

std::unique_ptr<FileSystem> systemFiles() {
    return std::make_unique<PosixFileSystem>();
}

}  // namespace winvrx
