#include "foundation/copies/safety_copies.h"

#include "foundation/copies/copied_files.h"

#include <algorithm>

namespace winvrx {

namespace {

std::filesystem::path copiesFolder(const DataFolder& folder) {
    return folder.path() / kCopiesSubfolder;
}

std::filesystem::path pathOf(const DataFolder& folder, const CopyName& copy) {
    return copiesFolder(folder) / copy.text();
}

/// Names of an archive are anybody's: each must be one file of the folder, and there but once.
class CheckedNames {
  public:
    void add(const std::string& name) {
        if (!isPlainFileName(name)) throw DamagedArchive("not the name of a file: " + name);
        if (!names_.insert(name).second) throw DamagedArchive("two files called " + name);
    }
    [[nodiscard]] bool contains(const std::string& name) const { return names_.contains(name); }
    /// A copy without files would empty the folder.
    void refuseNone() const {
        if (names_.empty()) throw DamagedArchive("no files");
    }

  private:
    std::set<std::string> names_;
};

std::vector<std::string> copiedFiles(const Store& store) {
    std::vector<std::string> names = store.files.names(store.folder.path());
    std::erase_if(names, [](const std::string& name) { return !isCopiedFile(name); });
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

bool SafetyCopies::hasDailyCopy(const DataFolder& folder, Date day) const {
    const auto copies = copiesIn(folder);
    return std::any_of(copies.begin(), copies.end(), [&](const CopyName& copy) {
        return copy.kind == CopyName::Kind::Daily && copy.made.date == day;
    });
}

bool SafetyCopies::makeDailyCopy(const DataFolder& folder, Clock::Moment now) {
    const Packed state = packed(folder, Unreadable::LeaveOut);
    if (state.files.empty()) return false;
    files_.makeFolder(copiesFolder(folder));
    files_.removeLeftovers(copiesFolder(folder));
    files_.replace(pathOf(folder, {.made = now}), state.archive);
    removeOutdated(folder, now.date);
    return true;
}

void SafetyCopies::removeOutdated(const DataFolder& folder, Date today) {
    for (const CopyName& copy : outdated(copiesIn(folder), today))
        files_.remove(pathOf(folder, copy));
}

std::vector<CopyName> SafetyCopies::copiesIn(const DataFolder& folder) const {
    std::vector<CopyName> copies;
    for (const std::string& name : files_.names(copiesFolder(folder)))
        if (const auto copy = CopyName::parse(name)) copies.push_back(*copy);
    std::sort(copies.begin(), copies.end(),
              [](const CopyName& left, const CopyName& right) { return right.isOlderThan(left); });
    return copies;
}

std::vector<SafetyCopy> SafetyCopies::list(const DataFolder& folder) const {
    std::vector<SafetyCopy> list;
    for (const CopyName& copy : copiesIn(folder))
        list.push_back(described(folder, copy));
    return list;
}

SafetyCopy SafetyCopies::described(const DataFolder& folder, const CopyName& copy) const {
    SafetyCopy described{.name = copy};
    try {
        const std::string archive = archiveOf(folder, copy);
        described.bytes = archive.size();
        CheckedNames checked;
        for (const std::string& name : archiver_.names(archive)) {
            checked.add(name);
            ++described.files;
        }
        checked.refuseNone();
    } catch (const Fault& fault) {
        log_.write("copy " + copy.text() + ": " + fault.what());
        described.damaged = true;
    }
    return described;
}

std::string SafetyCopies::archiveOf(const DataFolder& folder, const CopyName& copy) const {
    auto bytes = files_.read(pathOf(folder, copy));
    if (!bytes) throw Fault("no copy " + copy.text(), "A cópia não está mais na pasta de cópias.");
    return std::move(*bytes);
}

SafetyCopies::Packed SafetyCopies::packed(const DataFolder& folder, Unreadable unreadable) const {
    const std::vector<std::string> names = copiedFiles({files_, folder});
    Packed packed;
    const auto readable = [&](const std::string& name) -> std::optional<std::string> {
        try {
            return files_.read(folder.path() / name);
        } catch (const FileFault& fault) {
            if (unreadable == Unreadable::Refuse) throw;
            log_.write(std::string("left out of the day's copy: ") + fault.what());
            return std::nullopt;
        }
    };
    auto name = names.begin();
    packed.archive = archiver_.pack([&]() -> std::optional<ArchiveEntry> {
        for (; name != names.end(); ++name) {
            auto bytes = readable(*name);
            if (!bytes) continue;
            packed.files.insert(*name);
            return ArchiveEntry{*name++, std::move(*bytes)};
        }
        return std::nullopt;
    });
    return packed;
}

SafetyCopies::Difference SafetyCopies::difference(const DataFolder& folder,
                                                  const CopyName& copy) const {
    Difference difference;
    CheckedNames inCopy;
    archiver_.unpack(archiveOf(folder, copy), [&](ArchiveEntry entry) {
        inCopy.add(entry.name);
        if (!isCopiedFile(entry.name)) return;
        const auto file = folder.path() / entry.name;
        const auto here = files_.read(file);
        if (here == entry.bytes) return;
        difference.changes.push_back(
            {entry.name, here ? FileChange::Kind::Differs : FileChange::Kind::OnlyInCopy});
        difference.contents.push_back({file, std::move(entry.bytes)});
    });
    inCopy.refuseNone();
    for (const std::string& name : copiedFiles({files_, folder}))
        if (!inCopy.contains(name))
            difference.changes.push_back({name, FileChange::Kind::OnlyHere});
    std::sort(
        difference.changes.begin(), difference.changes.end(),
        [](const FileChange& left, const FileChange& right) { return left.file < right.file; });
    return difference;
}

std::vector<FileChange> SafetyCopies::changes(const DataFolder& folder,
                                              const CopyName& copy) const {
    return difference(folder, copy).changes;
}

std::set<std::string> SafetyCopies::keepReplaced(const DataFolder& folder, Clock::Moment now) {
    Packed state = packed(folder, Unreadable::Refuse);
    if (state.files.empty()) return {};
    CopyName name{.made = now, .kind = CopyName::Kind::Replaced};
    while (files_.exists(pathOf(folder, name)))
        ++name.number;
    files_.makeFolder(copiesFolder(folder));
    files_.replace(pathOf(folder, name), state.archive);
    return std::move(state.files);
}

void SafetyCopies::restore(const DataFolder& folder, const CopyName& copy, Clock::Moment now) {
    const Difference difference = this->difference(folder, copy);
    if (difference.changes.empty()) return;
    const std::set<std::string> kept = keepReplaced(folder, now);
    if (!difference.contents.empty()) files_.replaceAll(difference.contents);
    for (const FileChange& change : difference.changes)
        if (change.kind == FileChange::Kind::OnlyHere && kept.contains(change.file))
            files_.remove(folder.path() / change.file);
}

}  // namespace winvrx
