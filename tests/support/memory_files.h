#pragma once

#include "foundation/files/file_faults.h"
#include "foundation/files/file_system.h"

#include <map>
#include <set>
#include <stdexcept>

namespace winvrx::testing {

/// A disk in memory. Every operation on a file named in `failOn` fails; a file named in
/// `failWritesOn` can be read but not written, as on a full disk, and one named in `failRemovesOn`
/// cannot be deleted.
class MemoryFiles final : public FileSystem {
  public:
    std::map<std::filesystem::path, std::string> content;
    std::set<std::string> failOn;
    std::set<std::filesystem::path> folders;
    std::set<std::string> failWritesOn;
    std::set<std::string> failRemovesOn;
    std::map<std::filesystem::path, std::chrono::nanoseconds> times;
    mutable int listings = 0;  ///< how often a folder was listed
    mutable int reads = 0;

    [[nodiscard]] std::optional<std::string> read(
        const std::filesystem::path& file) const override {
        ++reads;
        check(FileFault::Operation::Read, file);
        const auto found = content.find(file);
        return found == content.end() ? std::nullopt : std::optional(found->second);
    }

    void replace(const std::filesystem::path& file, std::string_view bytes) override {
        check(FileFault::Operation::Write, file);
        content[file] = bytes;
    }

    void replaceAll(const std::vector<NewContent>& files) override {
        std::set<std::filesystem::path> named;
        for (const NewContent& one : files) {
            if (!named.insert(one.file).second)
                throw std::logic_error("named twice: " + one.file.string());
            replace(one.file, one.bytes);
        }
    }

    bool remove(const std::filesystem::path& file) override {
        check(FileFault::Operation::Remove, file);
        return content.erase(file) > 0;
    }

    [[nodiscard]] bool exists(const std::filesystem::path& file) const override {
        return content.contains(file) || folders.contains(file);
    }

    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override {
        ++listings;
        std::vector<std::string> names;
        for (const auto& [file, bytes] : content)
            if (file.parent_path() / "" == folder / "") names.push_back(file.filename().string());
        return names;
    }

    /// A file's time is that of the first listing in which it held these bytes; listings are a
    /// minute apart. A test may set `times` itself.
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override {
        std::vector<ListedFile> files;
        now_ += std::chrono::minutes(1);
        for (const std::string& name : names(folder)) {
            const std::string& bytes = content.at(folder / name);
            const auto [seen, first] = seen_.try_emplace(folder / name, Seen{bytes, now_});
            if (!first && seen->second.bytes != bytes) seen->second = {bytes, now_};
            const auto set = times.find(folder / name);
            files.push_back(
                {name, bytes.size(), set == times.end() ? seen->second.time : set->second});
        }
        return files;
    }

    void makeFolder(const std::filesystem::path& folder) override { folders.insert(folder); }

    [[nodiscard]] bool hasLeftovers(const std::filesystem::path&) const override { return false; }
    void removeLeftovers(const std::filesystem::path&) override {}

  private:
    struct Seen {
        std::string bytes;
        std::chrono::nanoseconds time;
    };

    void check(FileFault::Operation operation, const std::filesystem::path& file) const {
        const std::string name = file.filename().string();
        const bool write = operation == FileFault::Operation::Write;
        const bool remove = operation == FileFault::Operation::Remove;
        if (failOn.contains(name) || (write && failWritesOn.contains(name)) ||
            (remove && failRemovesOn.contains(name)))
            throw FileFault(operation, file, std::make_error_code(std::errc::no_space_on_device));
    }

    mutable std::map<std::filesystem::path, Seen> seen_;
    mutable std::chrono::nanoseconds now_{};
};

}  // namespace winvrx::testing
