#include "foundation/desk/data_version.h"

#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <charconv>

namespace winvrx {

namespace {

/// The number at the start of `text`, which is taken off.
std::optional<int> takeNumber(std::string_view& text) {
    int number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{} || number < 0) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

bool takeDot(std::string_view& text) {
    if (!text.starts_with('.')) return false;
    text.remove_prefix(1);
    return true;
}

/// What the run writes and removes again is no change of the records.
bool isOfTheRun(std::string_view name) {
    return name == kStartMemoryName || name == kSelectedMonthName || name == kReportDatabaseName;
}

}  // namespace

std::string ProgramVersion::text() const {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
}

std::optional<ProgramVersion> parseProgramVersion(std::string_view text) {
    const auto major = takeNumber(text);
    if (!major || !takeDot(text)) return std::nullopt;
    const auto minor = takeNumber(text);
    if (!minor || !takeDot(text)) return std::nullopt;
    const auto patch = takeNumber(text);
    if (!patch || !text.empty()) return std::nullopt;
    return ProgramVersion{*major, *minor, *patch};
}

ProgramVersion programVersion() {
    return parseProgramVersion(WINVRX_VERSION).value();
}

std::optional<ProgramVersion> dataVersion(const FileSystem& files, const DataFolder& folder) {
    const auto bytes = files.read(folder.file(kDataVersionName));
    if (!bytes) return std::nullopt;
    return parseProgramVersion(
        trimmed(std::string_view(*bytes).substr(0, bytes->find_first_of("\r\n"))));
}

void VersionedFiles::replace(const std::filesystem::path& file, std::string_view bytes) {
    beforeChange(file);
    files_.replace(file, bytes);
}

void VersionedFiles::replaceAll(const std::vector<NewContent>& files) {
    for (const NewContent& content : files)
        beforeChange(content.file);
    files_.replaceAll(files);
}

void VersionedFiles::beforeChange(const std::filesystem::path& file) {
    const DataFolder& folder = session_.folder;
    if (marked_ == folder.path() || file.parent_path() / "" != folder.path() / "" ||
        isOfTheRun(file.filename().string()))
        return;
    const auto before = dataVersion(files_, folder);
    if (!before || *before < programVersion())
        files_.replace(folder.file(kDataVersionName), programVersion().text() + "\r\n");
    marked_ = folder.path();
}

}  // namespace winvrx
