#include "foundation/copies/desktop/zip_archiver.h"

#include <archive.h>
#include <archive_entry.h>

#include <array>
#include <ctime>
#include <memory>

namespace winvrx {

namespace {

using Writer = std::unique_ptr<archive, decltype(&archive_write_free)>;
using Reader = std::unique_ptr<archive, decltype(&archive_read_free)>;
using Entry = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;

constexpr std::size_t kChunk = 65536;
constexpr int kPermissions = 0644;

std::string causeOf(archive* handle) {
    const char* text = archive_error_string(handle);
    return text ? text : "unknown cause";
}

[[noreturn]] void refuseToPack(const std::string& what) {
    throw Fault("packing: " + what, "A cópia não pôde ser preparada: " + what + ".");
}

void requirePacked(archive* handle, int result) {
    if (result != ARCHIVE_OK) refuseToPack(causeOf(handle));
}

void requireRead(archive* handle, int result) {
    if (result != ARCHIVE_OK) throw DamagedArchive(causeOf(handle));
}

la_ssize_t appendTo(archive*, void* target, const void* bytes, std::size_t count) {
    static_cast<std::string*>(target)->append(static_cast<const char*>(bytes), count);
    return static_cast<la_ssize_t>(count);
}

Writer openWriter(std::string& target) {
    Writer writer(archive_write_new(), &archive_write_free);
    requirePacked(writer.get(), archive_write_set_format_zip(writer.get()));
    requirePacked(writer.get(), archive_write_set_bytes_in_last_block(writer.get(), 1));
    requirePacked(writer.get(),
                  archive_write_open(writer.get(), &target, nullptr, &appendTo, nullptr));
    return writer;
}

void write(archive* writer, const ArchiveEntry& file) {
    const Entry entry(archive_entry_new(), &archive_entry_free);
    archive_entry_set_pathname_utf8(entry.get(), file.name.c_str());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), kPermissions);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(file.bytes.size()));
    archive_entry_set_mtime(entry.get(), std::time(nullptr), 0);
    requirePacked(writer, archive_write_header(writer, entry.get()));
    const la_ssize_t written = archive_write_data(writer, file.bytes.data(), file.bytes.size());
    if (written < 0 || static_cast<std::size_t>(written) != file.bytes.size())
        refuseToPack(causeOf(writer));
    requirePacked(writer, archive_write_finish_entry(writer));
}

/// Counts what an archive holds, on the way in and out.
class Measure {
  public:
    explicit Measure(const ArchiveLimits& limits) : limits_(limits) {}

    [[nodiscard]] bool takesFile() { return ++files_ <= limits_.files; }
    [[nodiscard]] bool takesBytes(std::uint64_t ofFile, std::uint64_t more) {
        total_ += more;
        return ofFile <= limits_.bytesInFile && total_ <= limits_.bytesInAll;
    }

  private:
    ArchiveLimits limits_;
    std::size_t files_ = 0;
    std::uint64_t total_ = 0;
};

/// Goes through an archive by its central directory, which one that was cut short has not.
class ZipReader {
  public:
    ZipReader(std::string_view bytes, const ArchiveLimits& limits)
        : reader_(archive_read_new(), &archive_read_free), measure_(limits) {
        requireRead(handle(), archive_read_support_format_zip_seekable(handle()));
        requireRead(handle(), archive_read_open_memory(handle(), bytes.data(), bytes.size()));
    }

    /// Moves to the next file; false after the last.
    [[nodiscard]] bool next() {
        const int result = archive_read_next_header(handle(), &entry_);
        if (result == ARCHIVE_EOF) return false;
        requireRead(handle(), result);
        if (!measure_.takesFile()) throw DamagedArchive("too many files");
        if (archive_entry_filetype(entry_) != AE_IFREG || archive_entry_symlink(entry_) ||
            archive_entry_hardlink(entry_))
            throw DamagedArchive("not a plain file: " + name());
        if (archive_entry_is_encrypted(entry_)) throw DamagedArchive("locked by a password");
        return true;
    }

    [[nodiscard]] std::string name() const {
        const char* name = archive_entry_pathname_utf8(entry_);
        if (!name) throw DamagedArchive("a name that is not UTF-8");
        return name;
    }

    /// The size that the archive claims is not believed: only bytes that are there are taken.
    [[nodiscard]] std::string bytes() {
        std::string bytes;
        std::array<char, kChunk> chunk;
        while (true) {
            const la_ssize_t count = archive_read_data(handle(), chunk.data(), chunk.size());
            if (count == 0) return bytes;
            if (count < 0) throw DamagedArchive(name() + ": " + causeOf(handle()));
            const auto read = static_cast<std::size_t>(count);
            if (!measure_.takesBytes(bytes.size() + read, read))
                throw DamagedArchive(name() + ": too large");
            bytes.append(chunk.data(), read);
        }
    }

  private:
    [[nodiscard]] archive* handle() const { return reader_.get(); }

    Reader reader_;
    archive_entry* entry_ = nullptr;
    Measure measure_;
};

}  // namespace

std::string ZipArchiver::pack(const Source& next) const {
    std::string target;
    const Writer writer = openWriter(target);
    Measure measure(limits_);
    while (const auto file = next()) {
        const std::uint64_t size = file->bytes.size();
        if (!measure.takesFile() || !measure.takesBytes(size, size))
            refuseToPack("a pasta de dados é grande demais");
        write(writer.get(), *file);
    }
    requirePacked(writer.get(), archive_write_close(writer.get()));
    return target;
}

void ZipArchiver::unpack(std::string_view archive, const Choice& chosen,
                         const Visitor& visit) const {
    for (ZipReader reader(archive, limits_); reader.next();) {
        std::string name = reader.name();
        if (chosen(name)) visit({std::move(name), reader.bytes()});
    }
}

}  // namespace winvrx
