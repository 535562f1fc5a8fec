#include "foundation/files/durable_files.h"

#include "foundation/files/file_faults.h"
#include "foundation/files/folder_lock.h"

#include <algorithm>
#include <map>

namespace winvrx {

namespace {

using Operation = FileFault::Operation;
using std::filesystem::path;

path temporaryOf(const path& file) {
    return file.string() + std::string(kTemporarySuffix);
}

bool isTemporary(const std::string& name) {
    return name.ends_with(kTemporarySuffix);
}

bool isNoRecord(const std::string& name) {
    return isTemporary(name) || name.ends_with(kLockSuffix);
}

}  // namespace

path recordOf(const path& file) {
    const std::string name = file.string();
    return isTemporary(name) ? name.substr(0, name.size() - kTemporarySuffix.size()) : name;
}

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
    std::map<path, path> folders;  // each with a file that was written in it
    for (const NewContent& content : files)
        if (content.bytes.size() > kLargestFile)
            throw FileFault(Operation::Write, content.file, FileProblem::TooLarge);
    try {
        for (const NewContent& content : files) {
            temporaries.push_back(temporaryOf(content.file));
            disk_->write(temporaries.back(), content.bytes);
            folders.emplace(content.file.parent_path(), content.file);
        }
        disk_->flush(temporaries);
        for (std::size_t i = 0; i < files.size(); ++i)
            disk_->rename(temporaries[i], files[i].file);
    } catch (const FileFault& fault) {
        discard(files);
        throw FileFault(Operation::Write, recordOf(fault.file()), fault.cause());
    } catch (...) {
        discard(files);
        throw;
    }
    for (const auto& [folder, file] : folders)
        flushFolder(folder, Operation::Write, file);
}

void DurableFiles::flushFolder(const path& folder, Operation operation, const path& file) {
    try {
        disk_->flushFolder(folder);
    } catch (const FileFault& fault) {
        throw FileFault(operation, file, fault.cause());
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
    flushFolder(file.parent_path(), Operation::Remove, file);
    return true;
}

bool DurableFiles::exists(const path& file) const {
    return disk_->exists(file);
}

std::vector<std::string> DurableFiles::names(const path& folder) const {
    std::vector<std::string> names = disk_->names(folder);
    std::erase_if(names, isNoRecord);
    return names;
}

std::vector<ListedFile> DurableFiles::list(const path& folder) const {
    std::vector<ListedFile> files = disk_->list(folder);
    std::erase_if(files, [](const ListedFile& file) { return isNoRecord(file.name); });
    return files;
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
