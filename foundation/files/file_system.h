#pragma once

#include "foundation/files/file_faults.h"
#include "foundation/files/listed_file.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// Everything that the program asks of the disk. Files are small and handled whole.
///
/// Every function throws FileFault, naming operation, file and cause. A file that is missing is
/// no fault. A record is a plain file of at most kLargestFile bytes: anything else in its place, a
/// symbolic link included, is neither read nor replaced, but a fault.
class FileSystem {
  public:
    struct NewContent {
        std::filesystem::path file;
        std::string bytes;
    };

    virtual ~FileSystem() = default;

    /// The file's bytes; nullopt when there is no such file.
    [[nodiscard]] virtual std::optional<std::string> read(
        const std::filesystem::path& file) const = 0;

    /// Makes `bytes` the file's content. After a crash at any instant the file holds the old bytes
    /// or the new ones, whole; after the return it holds the new ones for good.
    virtual void replace(const std::filesystem::path& file, std::string_view bytes) = 0;

    /// `replace` for many files, each with the same promise, with one flush of the folder. A file
    /// is named once.
    virtual void replaceAll(const std::vector<NewContent>& files) = 0;

    /// Removes the file; false when there was none. Of a symbolic link only the link goes.
    virtual bool remove(const std::filesystem::path& file) = 0;

    /// True for whatever bears the name, a dangling link included.
    [[nodiscard]] virtual bool exists(const std::filesystem::path& file) const = 0;

    /// Names of the files in `folder`, in no particular order, half-written ones and locks left
    /// out; none when the folder is missing.
    [[nodiscard]] virtual std::vector<std::string> names(
        const std::filesystem::path& folder) const = 0;

    /// The same files with size and time, from one pass over the folder.
    [[nodiscard]] virtual std::vector<ListedFile> list(
        const std::filesystem::path& folder) const = 0;

    /// Makes the folder and its parents; nothing to do when it stands.
    virtual void makeFolder(const std::filesystem::path& folder) = 0;

    /// True when a crash, or a command that is running elsewhere, left something half-written.
    [[nodiscard]] virtual bool hasLeftovers(const std::filesystem::path& folder) const = 0;

    /// Removes what a crash left half-written in the folder. Records are not touched. Who calls
    /// holds the folder's lock.
    virtual void removeLeftovers(const std::filesystem::path& folder) = 0;
};

/// The system's own files.
[[nodiscard]] std::unique_ptr<FileSystem> systemFiles();

}  // namespace winvrx
