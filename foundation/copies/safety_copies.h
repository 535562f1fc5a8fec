#pragma once

#include "foundation/copies/archiver.h"
#include "foundation/copies/copy_name.h"
#include "foundation/desk/log.h"
#include "foundation/files/data_folder.h"

#include <set>
#include <string>
#include <vector>

// Safety copies of the data folder: each an archive of the folder's files, in its sub-folder
// "Copias". The first write of a day makes one; those older than the last seven days of use go.
// Before a copy is brought back, what it replaces becomes a copy itself.

namespace winvrx {

inline constexpr std::string_view kCopiesSubfolder = "Copias";

/// A copy as the operator sees it.
struct SafetyCopy {
    CopyName name;
    std::size_t files = 0;
    std::size_t bytes = 0;  ///< of the archive
    bool damaged = false;
};

/// What bringing back a copy would do to one file of the folder.
struct FileChange {
    enum class Kind {
        Differs,     ///< gets the bytes that it had
        OnlyInCopy,  ///< is there again
        OnlyHere     ///< goes
    };

    std::string file;
    Kind kind;

    [[nodiscard]] bool operator==(const FileChange&) const = default;
};

/// All functions throw Fault and then leave the folder's records as they were, but where stated.
class SafetyCopies {
  public:
    /// `files` must not make copies itself.
    SafetyCopies(FileSystem& files, const Archiver& archiver, Log& log)
        : files_(files), archiver_(archiver), log_(log) {}

    [[nodiscard]] bool hasDailyCopy(const DataFolder& folder, Date day) const;

    /// Copies the folder and removes the copies that are outdated by then. False when there is
    /// nothing to copy yet. A file that cannot be read is logged and left out: the others are worth
    /// keeping.
    bool makeDailyCopy(const DataFolder& folder, Clock::Moment now);

    /// Newest first.
    [[nodiscard]] std::vector<SafetyCopy> list(const DataFolder& folder) const;

    /// What bringing the copy back would change, sorted by file; nothing when the folder is as the
    /// copy is.
    [[nodiscard]] std::vector<FileChange> changes(const DataFolder& folder,
                                                  const CopyName& copy) const;

    /// Makes the folder what it was: files that differ get their bytes back, missing ones come
    /// back, and those that the copy does not have go. First the present state becomes a further
    /// copy, with every file; when that fails nothing is changed. Each file holds its old bytes or
    /// its new ones whenever this is cut short, and running it again ends right.
    void restore(const DataFolder& folder, const CopyName& copy, Clock::Moment now);

  private:
    enum class Unreadable { LeaveOut, Refuse };

    struct Packed {
        std::string archive;
        std::set<std::string> files;
    };
    struct Difference {
        std::vector<FileChange> changes;
        std::vector<FileSystem::NewContent> contents;
    };

    [[nodiscard]] std::vector<CopyName> copiesIn(const DataFolder& folder) const;
    [[nodiscard]] std::string archiveOf(const DataFolder& folder, const CopyName& copy) const;
    [[nodiscard]] SafetyCopy described(const DataFolder& folder, const CopyName& copy) const;
    [[nodiscard]] Packed packed(const DataFolder& folder, Unreadable unreadable) const;
    [[nodiscard]] Difference difference(const DataFolder& folder, const CopyName& copy) const;
    [[nodiscard]] std::set<std::string> keepReplaced(const DataFolder& folder, Clock::Moment now);
    void removeOutdated(const DataFolder& folder, Date today);

    FileSystem& files_;
    const Archiver& archiver_;
    Log& log_;
};

}  // namespace winvrx
