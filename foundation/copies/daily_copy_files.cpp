#include "foundation/copies/daily_copy_files.h"

#include "foundation/copies/copied_files.h"

namespace winvrx {

void DailyCopyFiles::replace(const std::filesystem::path& file, std::string_view bytes) {
    beforeChange(file);
    files_.replace(file, bytes);
}

void DailyCopyFiles::replaceAll(const std::vector<NewContent>& files) {
    for (const NewContent& content : files)
        beforeChange(content.file);
    files_.replaceAll(files);
}

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
    copyOnce();
}

void DailyCopyFiles::copyOnce() {
    try {
        // A folder that was empty is copied when there is something in it.
        if (!copies_.makeDailyCopy(session_.folder, clock_.now())) last_.reset();
    } catch (const std::exception& fault) {
        log_.write(std::string("the day's copy: ") + fault.what());
    }
}

}  // namespace winvrx
