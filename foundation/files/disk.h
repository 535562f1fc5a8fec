#pragma once

#include "foundation/files/listed_file.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// The few operations of an operating system's disk from which safe files are made. What is
/// written or renamed is lasting only after the flush that follows it: a power cut may undo the
/// rest, in any order.
///
/// Every function throws FileFault.
class Disk {
  public:
    virtual ~Disk() = default;

    /// The file's bytes; nullopt when there is no such file. Refuses, without waiting, what is not
    /// a plain file of at most kLargestFile bytes.
    [[nodiscard]] virtual std::optional<std::string> read(
        const std::filesystem::path& file) const = 0;

    /// Makes a file with these bytes, or makes them the content of the file that stands. Anything
    /// may be in the file when this fails.
    virtual void write(const std::filesystem::path& file, std::string_view bytes) = 0;

    /// Makes a file that was not there; false when there is one of that name. Of several processes
    /// only one makes it, on a network share too. Part of the bytes may be in it when this fails.
    [[nodiscard]] virtual bool create(const std::filesystem::path& file,
                                      std::string_view bytes) = 0;

    /// Makes the content of these files lasting.
    virtual void flush(const std::vector<std::filesystem::path>& files) = 0;

    /// Lets go of what the system itself keeps of these flushed files, as far as it can, so that
    /// the next read asks the medium.
    virtual void forget(const std::vector<std::filesystem::path>&) const {}

    /// Gives `from` the name `to` in one step; a plain file of that name is gone, anything else
    /// there is refused.
    virtual void rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// False when there was no such file.
    virtual bool remove(const std::filesystem::path& file) = 0;

    /// Makes what was renamed and removed in the folder lasting.
    virtual void flushFolder(const std::filesystem::path& folder) = 0;

    /// True for whatever bears the name, a dangling link included.
    [[nodiscard]] virtual bool exists(const std::filesystem::path& path) const = 0;

    /// Names of the files in `folder`; none when there is no such folder.
    [[nodiscard]] virtual std::vector<std::string> names(const std::filesystem::path& folder) const;

    /// The same files with size and time, from one pass over the folder.
    [[nodiscard]] virtual std::vector<ListedFile> list(
        const std::filesystem::path& folder) const = 0;

    /// Makes the folder and its parents; nothing to do when it stands.
    virtual void makeFolder(const std::filesystem::path& folder);
};

/// The disk of this computer.
[[nodiscard]] std::unique_ptr<Disk> systemDisk();

}  // namespace winvrx
