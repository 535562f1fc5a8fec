#include "foundation/files/durable_files.h"

#include "foundation/files/file_faults.h"
#include "foundation/files/folder_lock.h"

#include <algorithm>
#include <set>

namespace winvrx {

namespace {

using std::filesystem::path;

path temporaryOf(const path& file) {
    return file.string() + std::string(kTemporarySuffix);
}

bool isTemporary(const std::string& name) {
    return name.ends_with(kTemporarySuffix);
}

}  // namespace

std::unique_ptr<FileSystem> systemFiles() {
    return std::make_unique<DurableFiles>(systemDisk());
}

std::optional<std::string> DurableFiles::read(const path& file) const {
    return disk_->read(file);
}

void DurableFiles::replace(const path& file, std::string_view bytes) {
    replaceAll({{file, std::string(bytes)}});
}

void DurableFiles::replaceAll(const std::vector<NewContent>& files) {
    std::vector<path> temporaries;
    std::set<path> folders;
    for (const NewContent& content : files)
        if (content.bytes.size() > kLargestFile)
            throw FileFault(FileFault::Operation::Write, content.file, FileProblem::TooLarge);
    try {
        for (const NewContent& content : files) {
            temporaries.push_back(temporaryOf(content.file));
            writeTemporary(content);
            folders.insert(content.file.parent_path());
        }
        disk_->flush(temporaries);
        for (std::size_t i = 0; i < files.size(); ++i)
            disk_->rename(temporaries[i], files[i].file);
    } catch (...) {
        discard(files);
        throw;
    }
    for (const path& folder : folders)
        disk_->flushFolder(folder);
}

void DurableFiles::writeTemporary(const NewContent& content) {
    try {
        disk_->write(temporaryOf(content.file), content.bytes);
    } catch (const FileFault& fault) {
        // The operator knows the record, not the name under which it is being written.
        throw FileFault(FileFault::Operation::Write, content.file, fault.cause());
    }
}

void DurableFiles::discard(const std::vector<NewContent>& files) noexcept {
    for (const NewContent& content : files) {
        try {
            disk_->remove(temporaryOf(content.file));
        } catch (...) {
            // The disk is failing already; the next start removes what is left.
            return;
        }
    }
}

bool DurableFiles::remove(const path& file) {
    if (!disk_->remove(file)) return false;
    disk_->flushFolder(file.parent_path());
    return true;
}

bool DurableFiles::exists(const path& file) const {
    return disk_->exists(file);
}

std::vector<std::string> DurableFiles::names(const path& folder) const {
    std::vector<std::string> names = disk_->names(folder);
    std::erase_if(names, [](const std::string& name) {
        return isTemporary(name) || name.ends_with(kLockSuffix);
    });
    return names;
}

void DurableFiles::makeFolder(const path& folder) {
    disk_->makeFolder(folder);
}

bool DurableFiles::hasLeftovers(const path& folder) const {
    return std::ranges::any_of(disk_->names(folder), isTemporary);
}

void DurableFiles::removeLeftovers(const path& folder) {
    for (const std::string& name : disk_->names(folder))
        if (isTemporary(name)) disk_->remove(folder / name);
}

}  // namespace winvrx
