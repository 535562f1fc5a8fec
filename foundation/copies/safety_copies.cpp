#include "foundation/copies/safety_copies.h"

#include "foundation/copies/copied_files.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

/// With more archives than this to refer to, a copy takes in what the lesser half of them holds. So
/// their number stays small, and a file is packed again but a few times in years.
constexpr std::size_t kMostOthers = 20;

bool hasDailyCopy(const CopyShelf& shelf, Date day) {
    const auto copies = shelf.copies();
    return std::any_of(copies.begin(), copies.end(), [&](const CopyName& copy) {
        return copy.kind == CopyName::Kind::Daily && copy.made.date == day;
    });
}

/// The archives that hold the files, those with the fewest first.
std::vector<std::string> byFewestFiles(const CopyContents& contents) {
    std::map<std::string, std::size_t> counts;
    for (const auto& [name, file] : contents.files)
        ++counts[file.archive];
    std::vector<std::string> archives;
    for (const auto& [name, count] : counts)
        archives.push_back(name);
    std::ranges::stable_sort(archives, {},
                             [&](const std::string& archive) { return counts.at(archive); });
    return archives;
}

/// Forgets where the files lie that the lesser half of too many archives holds, so that they are
/// packed again.
void limitOthers(CopyContents& contents) {
    std::vector<std::string> archives = byFewestFiles(contents);
    if (archives.size() <= kMostOthers) return;
    archives.resize(archives.size() / 2);
    const std::set<std::string> lesser(archives.begin(), archives.end());
    std::erase_if(contents.files,
                  [&](const auto& entry) { return lesser.contains(entry.second.archive); });
    std::erase_if(contents.others, [&](const auto& other) { return lesser.contains(other.first); });
}

}  // namespace

bool SafetyCopies::makeDailyCopy(const DataFolder& folder, Clock::Moment now) {
    const CopyShelf shelf(files_, archiver_, folder);
    if (hasDailyCopy(shelf, now.date)) return true;
    const auto made = make(shelf, folder, now, {});
    if (made) removeOutdated(shelf, made->name, now.date);
    return made.has_value();
}

void SafetyCopies::makeCopyBefore(const DataFolder& folder, Clock::Moment now,
                                  const std::string& act) {
    const CopyShelf shelf(files_, archiver_, folder);
    make(shelf, folder, now,
         {.kind = CopyName::Kind::Before, .before = act, .unreadable = Unreadable::Refuse});
}

std::optional<SafetyCopies::Made> SafetyCopies::make(const CopyShelf& shelf,
                                                     const DataFolder& folder, Clock::Moment now,
                                                     const Purpose& purpose) {
    const std::vector<ListedFile> here = copiedFiles(folder);
    if (here.empty()) return std::nullopt;
    CopyContents contents = unchangedSince(shelf, here, purpose);
    contents.before = purpose.before;
    const std::string archive = pack(folder, here, contents, purpose.unreadable);
    if (contents.files.empty()) return std::nullopt;
    if (shelf.copies().empty()) files_.makeFolder(shelf.path());
    files_.removeLeftovers(shelf.path());
    const CopyName name = shelf.freeName(now, purpose.kind);
    files_.replace(shelf.path() / name.text(), archive);
    return Made{name, std::move(contents)};
}

std::vector<ListedFile> SafetyCopies::copiedFiles(const DataFolder& folder) const {
    std::vector<ListedFile> files = files_.list(folder.path());
    std::erase_if(files, [](const ListedFile& file) { return !isCopiedFile(file.name); });
    std::ranges::sort(files, {}, &ListedFile::name);
    return files;
}

std::optional<OpenedCopy> SafetyCopies::predecessor(const CopyShelf& shelf) const {
    const auto latest = shelf.latest();
    if (!latest) return std::nullopt;
    try {
        return shelf.open(*latest);
    } catch (const DamagedArchive& fault) {
        log_.write("copy " + latest->text() + ": " + fault.what());
        return std::nullopt;
    }
}

CopyContents SafetyCopies::unchangedSince(const CopyShelf& shelf,
                                          const std::vector<ListedFile>& here,
                                          const Purpose& purpose) const {
    CopyContents contents;
    const auto before = predecessor(shelf);
    if (!before) return contents;
    CopyContents::Archives archives = before->contents.others;
    archives.emplace(before->name.text(), before->archive.size());
    // What an archive held that is gone or damaged is packed again.
    std::erase_if(archives,
                  [&](const auto& other) { return !shelf.has(other.first, other.second); });
    for (const ListedFile& file : here) {
        if (purpose.packed.contains(file.name) || !before->isUnchanged(file)) continue;
        CopyContents::File unchanged = before->contents.files.at(file.name);
        if (unchanged.archive.empty()) unchanged.archive = before->name.text();
        const auto other = archives.find(unchanged.archive);
        if (other == archives.end()) continue;
        contents.others.insert(*other);
        contents.files.emplace(file.name, std::move(unchanged));
    }
    limitOthers(contents);
    return contents;
}

std::string SafetyCopies::pack(const DataFolder& folder, const std::vector<ListedFile>& here,
                               CopyContents& contents, Unreadable unreadable) const {
    const auto read = [&](const std::string& name) -> std::optional<std::string> {
        try {
            return files_.read(folder.path() / name);
        } catch (const FileFault& fault) {
            if (unreadable == Unreadable::Refuse) throw;
            log_.write(std::string("left out of the copy: ") + fault.what());
            return std::nullopt;
        }
    };
    const Progress goesOn = progress_();
    const std::size_t all = here.size() - contents.files.size();
    std::size_t done = 0;
    bool ended = false;
    auto file = here.begin();
    return archiver_.pack([&]() -> std::optional<ArchiveEntry> {
        for (; file != here.end(); ++file) {
            if (contents.files.contains(file->name)) continue;
            if (!goesOn(++done, all))
                throw Fault("copy given up", "A cópia de segurança foi cancelada.");
            auto bytes = read(file->name);
            if (!bytes) continue;
            contents.files[file->name] = {bytes->size(), file->written, {}};
            return ArchiveEntry{file++->name, std::move(*bytes)};
        }
        if (std::exchange(ended, true)) return std::nullopt;
        return ArchiveEntry{std::string(kContentsName), encode(contents)};
    });
}

void SafetyCopies::removeOutdated(const CopyShelf& shelf, const CopyName& made, Date today) {
    auto copies = shelf.copies();
    copies.push_back(made);
    std::set<std::string> outdatedNames;
    for (const CopyName& copy : outdated(copies, today))
        outdatedNames.insert(copy.text());
    if (outdatedNames.empty()) return;
    std::set<std::string> needed;
    for (const CopyName& copy : copies)
        if (!outdatedNames.contains(copy.text()))
            for (const auto& [other, size] : shelf.othersOf(copy))
                needed.insert(other);
    for (const std::string& name : outdatedNames)
        if (!needed.contains(name)) files_.remove(shelf.path() / name);
}

std::vector<SafetyCopy> SafetyCopies::list(const DataFolder& folder, Date today) const {
    const CopyShelf shelf(files_, archiver_, folder);
    const auto copies = shelf.copies();
    const auto old = outdated(copies, today);
    std::vector<SafetyCopy> list;
    for (const CopyName& copy : copies)
        if (std::find(old.begin(), old.end(), copy) == old.end())
            list.push_back(described(shelf, copy));
    return list;
}

SafetyCopy SafetyCopies::described(const CopyShelf& shelf, const CopyName& copy) const {
    SafetyCopy described{.name = copy, .before = {}};
    try {
        const OpenedCopy opened = shelf.open(copy);
        described.before = opened.contents.before;
        described.files = opened.contents.files.size();
        described.bytes = opened.archive.size();
        const auto& others = opened.contents.others;
        described.damaged = !std::all_of(others.begin(), others.end(), [&](const auto& other) {
            return shelf.has(other.first, other.second);
        });
    } catch (const Fault& fault) {
        log_.write("copy " + copy.text() + ": " + fault.what());
        described.damaged = true;
    }
    return described;
}

SafetyCopies::Difference SafetyCopies::difference(const DataFolder& folder, const CopyName& copy,
                                                  Depth depth) const {
    const CopyShelf shelf(files_, archiver_, folder);
    const OpenedCopy opened = shelf.open(copy);
    Difference difference;
    std::map<std::string, FileChange::Kind> changed;
    for (const auto& [name, file] : opened.contents.files)
        if (isCopiedFile(name)) changed.emplace(name, FileChange::Kind::OnlyInCopy);
    std::set<std::string> unsure;  // as large as they were, and only their bytes tell
    for (const ListedFile& here : copiedFiles(folder)) {
        const auto file = opened.contents.files.find(here.name);
        if (file == opened.contents.files.end())
            changed[here.name] = FileChange::Kind::OnlyHere;
        else if (opened.isUnchanged(here))
            changed.erase(here.name);
        else if (changed[here.name] = FileChange::Kind::Differs; file->second.size == here.size)
            unsure.insert(here.name);
    }
    std::set<std::string> unpacked = unsure;
    for (const auto& [name, kind] : changed) {
        if (kind == FileChange::Kind::OnlyHere) continue;
        shelf.requireHolderOf(opened, name);
        if (depth == Depth::WithContents) unpacked.insert(name);
    }
    shelf.unpack(opened, unpacked, [&](ArchiveEntry entry) {
        const auto file = folder.path() / entry.name;
        if (unsure.contains(entry.name) && files_.read(file) == entry.bytes)
            changed.erase(entry.name);
        else if (depth == Depth::WithContents)
            difference.contents.push_back({file, std::move(entry.bytes)});
    });
    for (const auto& [name, kind] : changed)
        difference.changes.push_back({name, kind});
    return difference;
}

std::vector<FileChange> SafetyCopies::changes(const DataFolder& folder,
                                              const CopyName& copy) const {
    return difference(folder, copy, Depth::NamesOnly).changes;
}

void SafetyCopies::restore(const DataFolder& folder, const CopyName& copy, Clock::Moment now) {
    const Difference difference = this->difference(folder, copy, Depth::WithContents);
    if (difference.changes.empty()) return;
    Purpose purpose{.kind = CopyName::Kind::Before,
                    .before = "restaurar a cópia de " + momentOfCopy(copy),
                    .unreadable = Unreadable::Refuse};
    for (const FileChange& change : difference.changes)
        purpose.packed.insert(change.file);
    const CopyShelf shelf(files_, archiver_, folder);
    const auto kept = make(shelf, folder, now, purpose);
    if (!difference.contents.empty()) files_.replaceAll(difference.contents);
    for (const FileChange& change : difference.changes)
        if (change.kind == FileChange::Kind::OnlyHere && kept &&
            kept->contents.files.contains(change.file))
            files_.remove(folder.path() / change.file);
}

}  // namespace winvrx
