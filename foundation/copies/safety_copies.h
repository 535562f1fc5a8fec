#pragma once

#include "foundation/copies/copy_shelf.h"
#include "foundation/desk/log.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

// Safety copies of the data folder: archives in its sub-folder "Copias". The first write of a day
// makes one, and so does a command that deletes much or brings a copy back, before it does so;
// those older than the last seven days of use go. A copy packs the files that changed since the one
// before it and names the archives that hold the rest (copy_contents.h).

namespace winvrx {

/// A copy as the operator sees it.
struct SafetyCopy {
    CopyName name;
    std::string before;  ///< what it was made before, in words; empty for a day's
    std::size_t files = 0;
    std::size_t bytes = 0;  ///< of its own archive
    bool damaged = false;   ///< it, or an archive that it needs
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
    /// Told how many of how many files are packed; false gives the copy up.
    using Progress = std::function<bool(std::size_t done, std::size_t all)>;
    /// Asked for each copy; what it gives is let go when the files are packed.
    using ProgressMaker = std::function<Progress()>;

    /// `files` must not make copies itself.
    SafetyCopies(
        FileSystem& files, const Archiver& archiver, Log& log,
        ProgressMaker progress = [] { return [](std::size_t, std::size_t) { return true; }; })
        : files_(files), archiver_(archiver), log_(log), progress_(std::move(progress)) {}

    /// Copies the folder, unless the day has its copy, and removes the copies that are outdated by
    /// then. False when there is nothing to copy yet. A file that cannot be read is logged and left
    /// out: the others are worth keeping.
    bool makeDailyCopy(const DataFolder& folder, Clock::Moment now);

    /// Copies the folder, whatever copies there are, before `act`: "excluir a empresa 02 PADARIA".
    /// The copy has every file, or it fails.
    void makeCopyBefore(const DataFolder& folder, Clock::Moment now, const std::string& act);

    /// Those that are not outdated, newest first.
    [[nodiscard]] std::vector<SafetyCopy> list(const DataFolder& folder, Date today) const;

    /// What bringing the copy back would change, sorted by file; nothing when the folder is as the
    /// copy is.
    [[nodiscard]] std::vector<FileChange> changes(const DataFolder& folder,
                                                  const CopyName& copy) const;

    /// Makes the folder what it was: files that differ get their bytes back, missing ones come
    /// back, and those that the copy does not have go. First the present state becomes a further
    /// copy, with every file, and itself packs what is to be replaced; when that fails nothing is
    /// changed. Each file holds its old bytes or its new ones whenever this is cut short, and
    /// running it again ends right.
    void restore(const DataFolder& folder, const CopyName& copy, Clock::Moment now);

  private:
    enum class Unreadable { LeaveOut, Refuse };

    struct Purpose {
        CopyName::Kind kind = CopyName::Kind::Daily;
        std::string before = {};
        std::set<std::string> packed = {};  ///< files that it holds itself, changed or not
        Unreadable unreadable = Unreadable::LeaveOut;
    };
    struct Difference {
        std::vector<FileChange> changes;
        std::vector<FileSystem::NewContent> contents;
    };

    [[nodiscard]] std::vector<ListedFile> copiedFiles(const DataFolder& folder) const;
    [[nodiscard]] SafetyCopy described(const CopyShelf& shelf, const CopyName& copy) const;
    [[nodiscard]] std::optional<OpenedCopy> predecessor(const CopyShelf& shelf) const;
    [[nodiscard]] CopyContents unchangedSince(const CopyShelf& shelf,
                                              const std::vector<ListedFile>& here,
                                              const Purpose& purpose) const;
    [[nodiscard]] std::string pack(const DataFolder& folder, const std::vector<ListedFile>& here,
                                   CopyContents& contents, Unreadable unreadable) const;
    struct Made {
        CopyName name;
        CopyContents contents;
    };
    /// nullopt when there is nothing to copy.
    std::optional<Made> make(const CopyShelf& shelf, const DataFolder& folder, Clock::Moment now,
                             const Purpose& purpose);
    enum class Depth { NamesOnly, WithContents };
    /// Reads only the files whose size does not tell.
    [[nodiscard]] Difference difference(const DataFolder& folder, const CopyName& copy,
                                        Depth depth) const;
    /// Of the copies on the shelf and the one that was just made.
    void removeOutdated(const CopyShelf& shelf, const CopyName& made, Date today);

    FileSystem& files_;
    const Archiver& archiver_;
    Log& log_;
    ProgressMaker progress_;
};

}  // namespace winvrx
