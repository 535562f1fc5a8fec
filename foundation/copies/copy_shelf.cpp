#include "foundation/copies/copy_shelf.h"

#include "foundation/copies/copied_files.h"

#include <algorithm>

namespace winvrx {

namespace {

/// As coarse as the clocks of file systems are: FAT counts in two seconds.
constexpr std::chrono::seconds kClockStep{2};

/// Names of an archive are anybody's: each must be one file of the folder, and there but once.
class CheckedNames {
  public:
    void add(const std::string& name) {
        if (!isPlainFileName(name)) throw DamagedArchive("not the name of a file: " + name);
        if (!names_.insert(name).second) throw DamagedArchive("two files called " + name);
    }
    [[nodiscard]] bool contains(const std::string& name) const { return names_.contains(name); }

  private:
    std::set<std::string> names_;
};

Fault lacks(const std::string& archive, const std::string& what) {
    return {"a copy needs " + archive + ", which " + what,
            "Esta cópia precisa de \"" + archive + "\", que " +
                (what == "is gone" ? "não está mais na pasta de cópias." : "está danificada.")};
}

/// A copy of an archive that says nothing of itself, as every zip of the folder's files is one.
CopyContents plainContents(const Archiver& archiver, std::string_view archive) {
    CopyContents contents;
    archiver.unpack(
        archive, [](const std::string&) { return true; },
        [&](const ArchiveEntry& entry) { contents.files[entry.name].size = entry.bytes.size(); });
    return contents;
}

/// The entry that tells the contents; nullopt where there is none. Checks every name.
std::optional<std::string> contentsEntry(const Archiver& archiver, std::string_view archive,
                                         CheckedNames& names) {
    std::optional<std::string> text;
    const auto isContents = [&](const std::string& name) {
        names.add(name);
        return name == kContentsName;
    };
    archiver.unpack(archive, isContents,
                    [&](ArchiveEntry entry) { text = std::move(entry.bytes); });
    return text;
}

}  // namespace

bool OpenedCopy::isUnchanged(const ListedFile& file) const {
    const auto found = contents.files.find(file.name);
    return found != contents.files.end() && found->second.size == file.size &&
           found->second.written == file.written && file.written + kClockStep < written;
}

CopyShelf::CopyShelf(const FileSystem& files, const Archiver& archiver, const DataFolder& folder)
    : files_(files), archiver_(archiver), path_(folder.path() / kCopiesSubfolder) {
    for (ListedFile& file : files_.list(path_))
        if (CopyName::parse(file.name)) archives_.emplace(file.name, file);
}

std::vector<CopyName> CopyShelf::copies() const {
    std::vector<CopyName> copies;
    for (const auto& [name, file] : archives_)
        copies.push_back(CopyName::parse(name).value());
    std::sort(copies.begin(), copies.end(),
              [](const CopyName& left, const CopyName& right) { return right.isOlderThan(left); });
    return copies;
}

std::optional<CopyName> CopyShelf::latest() const {
    const auto all = copies();
    const auto newest =
        std::max_element(all.begin(), all.end(), [&](const CopyName& left, const CopyName& right) {
            const auto a = archives_.at(left.text()).written;
            const auto b = archives_.at(right.text()).written;
            return a < b || (a == b && left.isOlderThan(right));
        });
    if (newest == all.end()) return std::nullopt;
    return *newest;
}

CopyName CopyShelf::freeName(Clock::Moment made, CopyName::Kind kind) const {
    CopyName name{.made = made, .kind = kind};
    while (archives_.contains(name.text()))
        ++name.number;
    return name;
}

bool CopyShelf::has(const std::string& archive, std::uint64_t size) const {
    const auto found = archives_.find(archive);
    return found != archives_.end() && found->second.size == size;
}

std::string CopyShelf::bytesOf(const CopyName& copy) const {
    auto bytes = files_.read(path_ / copy.text());
    if (!bytes) throw Fault("no copy " + copy.text(), "A cópia não está mais na pasta de cópias.");
    return std::move(*bytes);
}

std::string CopyShelf::bytesOf(const std::string& other, std::uint64_t size) const {
    auto bytes = files_.read(path_ / other);
    if (!bytes) throw lacks(other, "is gone");
    if (bytes->size() != size) throw lacks(other, "has another size");
    return std::move(*bytes);
}

OpenedCopy CopyShelf::open(const CopyName& copy) const {
    OpenedCopy opened{.name = copy, .archive = bytesOf(copy), .contents = {}, .written = {}};
    CheckedNames names;
    const auto text = contentsEntry(archiver_, opened.archive, names);
    opened.contents = text ? decodeContents(*text) : plainContents(archiver_, opened.archive);
    // A copy without files would empty the folder.
    if (opened.contents.files.empty()) throw DamagedArchive("no files");
    for (const auto& [name, file] : opened.contents.files)
        if (file.archive.empty() && !names.contains(name)) throw DamagedArchive("lacks " + name);
    if (const auto listed = archives_.find(copy.text()); listed != archives_.end())
        opened.written = listed->second.written;
    return opened;
}

CopyContents::Archives CopyShelf::othersOf(const CopyName& copy) const {
    CheckedNames names;
    const auto text = contentsEntry(archiver_, bytesOf(copy), names);
    return text ? decodeOthers(*text) : CopyContents::Archives();
}

void CopyShelf::requireHolderOf(const OpenedCopy& copy, const std::string& file) const {
    const std::string& archive = copy.contents.files.at(file).archive;
    if (!archive.empty() && !has(archive, copy.contents.others.at(archive)))
        throw lacks(archive, archives_.contains(archive) ? "has another size" : "is gone");
}

void CopyShelf::unpack(const OpenedCopy& copy, const std::set<std::string>& files,
                       const Archiver::Visitor& visit) const {
    std::map<std::string, std::set<std::string>> byArchive;
    for (const std::string& name : files)
        byArchive[copy.contents.files.at(name).archive].insert(name);
    for (auto& part : byArchive) {
        const std::string& archive = part.first;
        std::set<std::string>& wanted = part.second;
        const auto chosen = [&](const std::string& name) { return wanted.contains(name); };
        const auto take = [&](ArchiveEntry entry) {
            if (entry.bytes.size() != copy.contents.files.at(entry.name).size)
                throw DamagedArchive("another size of " + entry.name);
            wanted.erase(entry.name);
            visit(std::move(entry));
        };
        if (archive.empty()) {
            archiver_.unpack(copy.archive, chosen, take);
            continue;
        }
        try {
            archiver_.unpack(bytesOf(archive, copy.contents.others.at(archive)), chosen, take);
        } catch (const DamagedArchive& fault) {
            throw lacks(archive, std::string("is damaged: ") + fault.what());
        }
        if (!wanted.empty()) throw lacks(archive, "lacks " + *wanted.begin());
    }
}

}  // namespace winvrx
