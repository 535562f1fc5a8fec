#include "tests/support/memory_disk.h"

#include <set>

namespace winvrx::testing {

using std::filesystem::path;

MemoryDisk::MemoryDisk(const Files& files) {
    for (const auto& [file, bytes] : files)
        now_[file] = std::make_shared<Content>(Content{bytes, bytes, {}});
    lasting_ = now_;
}

std::optional<std::string> MemoryDisk::read(const path& file) const {
    const auto found = now_.find(file);
    return found == now_.end() ? std::nullopt : std::optional(found->second->bytes);
}

void MemoryDisk::write(const path& file, std::string_view bytes) {
    auto& content = now_[file];
    if (!content) content = std::make_shared<Content>();
    content->bytes = bytes;
    content->written = time_ += std::chrono::minutes(1);
}

bool MemoryDisk::create(const path& file, std::string_view bytes) {
    if (now_.contains(file)) return false;
    write(file, bytes);
    return true;
}

void MemoryDisk::flush(const std::vector<path>& files) {
    for (const path& file : files)
        now_.at(file)->lasting = now_.at(file)->bytes;
}

void MemoryDisk::rename(const path& from, const path& to) {
    now_[to] = now_.at(from);
    now_.erase(from);
}

bool MemoryDisk::remove(const path& file) {
    return now_.erase(file) > 0;
}

void MemoryDisk::flushFolder(const path& folder) {
    std::erase_if(lasting_, [&](const auto& entry) { return entry.first.parent_path() == folder; });
    for (const auto& [file, content] : now_)
        if (file.parent_path() == folder) lasting_[file] = content;
}

bool MemoryDisk::exists(const path& file) const {
    return now_.contains(file);
}

std::vector<std::string> MemoryDisk::names(const path& folder) const {
    std::vector<std::string> names;
    for (const auto& [file, content] : now_)
        if (file.parent_path() == (folder / "").parent_path())
            names.push_back(file.filename().string());
    return names;
}

std::vector<ListedFile> MemoryDisk::list(const path& folder) const {
    std::vector<ListedFile> files;
    for (const std::string& name : names(folder)) {
        const Content& content = *now_.at(folder / name);
        files.push_back({name, content.bytes.size(), content.written});
    }
    return files;
}

void MemoryDisk::cutPower(std::mt19937& dice) {
    const auto side = [&dice] { return dice() % 2 == 0; };
    std::set<path> names;
    for (const Entries* entries : {&now_, &lasting_})
        for (const auto& [file, content] : *entries)
            names.insert(file);
    Entries left;
    for (const path& file : names) {
        const Entries& kept = side() ? now_ : lasting_;
        if (const auto found = kept.find(file); found != kept.end()) left.insert(*found);
    }
    for (auto& [file, content] : left) {
        std::string bytes = side() ? content->bytes : content->lasting;
        if (bytes != content->lasting && side()) bytes.resize(bytes.size() / 2);
        content = std::make_shared<Content>(Content{bytes, bytes, content->written});
    }
    now_ = left;
    lasting_ = left;
}

MemoryDisk::Files MemoryDisk::files() const {
    Files files;
    for (const auto& [file, content] : now_)
        files[file] = content->bytes;
    return files;
}

}  // namespace winvrx::testing
