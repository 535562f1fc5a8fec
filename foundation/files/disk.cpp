#include "foundation/files/disk.h"

#include "foundation/files/file_faults.h"

namespace winvrx {

std::vector<std::string> Disk::names(const std::filesystem::path& folder) const {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    if (error == std::errc::no_such_file_or_directory) return names;
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        if (!entry->is_directory(error)) names.push_back(entry->path().filename().string());
    if (error) throw FileFault(FileFault::Operation::List, folder, error);
    return names;
}

void Disk::makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw FileFault(FileFault::Operation::MakeFolder, folder, error);
}

}  // namespace winvrx
