#include "foundation/copies/daily_copy_files.h"

#include "foundation/copies/copied_files.h"
#include "foundation/desk/command.h"

namespace winvrx {

bool DailyCopyFiles::remove(const std::filesystem::path& file) {
    beforeChange(file);
    return files_.remove(file);
}

void DailyCopyFiles::beforeChange(const std::filesystem::path& file) {
    // Joined with an empty name, a folder reads the same with and without its last separator.
    const auto& folder = session_.folder.path();
    if (file.parent_path() / "" != folder / "" || !isCopiedFile(file.filename().string())) return;
    const Attempt attempt{folder, clock_.today()};
    if (last_ == attempt) return;
    last_ = attempt;
    attemptQuietly(log_, "the day's copy", [this] {
        // A folder that was empty is copied when there is something in it.
        if (!copies_.makeDailyCopy(session_.folder, clock_.now())) last_.reset();
    });
}

}  // namespace winvrx
