#pragma once

#include "foundation/copies/archiver.h"
#include "foundation/copies/copy_contents.h"
#include "foundation/copies/copy_name.h"
#include "foundation/files/data_folder.h"

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kCopiesSubfolder = "Copias";

/// A copy whose archive was read.
struct OpenedCopy {
    CopyName name;
    std::string archive;
    CopyContents contents;
    std::chrono::nanoseconds written{};

    /// True when the file stands in the folder as it was copied: by its size and time, and only
    /// where a later change could not have left it the same time.
    [[nodiscard]] bool isUnchanged(const ListedFile& file) const;
};

/// The archives in the sub-folder "Copias" of a data folder, as they were listed once. Functions
/// throw DamagedArchive, another Fault that names an archive that a copy needs, and FileFault.
class CopyShelf {
  public:
    CopyShelf(const FileSystem& files, const Archiver& archiver, const DataFolder& folder);

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// Newest first.
    [[nodiscard]] std::vector<CopyName> copies() const;
    /// The one that was written last; nullopt when there is none.
    [[nodiscard]] std::optional<CopyName> latest() const;
    /// A name that no file has yet.
    [[nodiscard]] CopyName freeName(Clock::Moment made, CopyName::Kind kind) const;
    /// False when the archive is gone or has another size.
    [[nodiscard]] bool has(const std::string& archive, std::uint64_t size) const;

    [[nodiscard]] OpenedCopy open(const CopyName& copy) const;
    /// The archives that the copy needs beside its own.
    [[nodiscard]] CopyContents::Archives othersOf(const CopyName& copy) const;
    /// Throws when the archive that holds a file of the copy is gone or has another size.
    void requireHolderOf(const OpenedCopy& copy, const std::string& file) const;
    /// Hands over these files of the copy, whichever archives hold them: all of them, or throws.
    void unpack(const OpenedCopy& copy, const std::set<std::string>& files,
                const Archiver::Visitor& visit) const;

  private:
    [[nodiscard]] std::string bytesOf(const CopyName& copy) const;
    [[nodiscard]] std::string bytesOf(const std::string& other, std::uint64_t size) const;

    const FileSystem& files_;
    const Archiver& archiver_;
    std::filesystem::path path_;
    std::map<std::string, ListedFile> archives_;
};

}  // namespace winvrx
