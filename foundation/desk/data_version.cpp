#include "foundation/desk/data_version.h"

#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <charconv>

namespace winvrx {

namespace {

/// What the run writes and removes again is no change of the records.
bool isOfTheRun(std::string_view name) {
    return name == kStartMemoryName || name == kSelectedMonthName || name == kReportDatabaseName;
}

}  // namespace

std::string ProgramVersion::text() const {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
}

std::optional<ProgramVersion> parseProgramVersion(std::string_view text) {
    ProgramVersion version;
    const char* at = text.data();
    const char* const end = at + text.size();
    for (int* const part : {&version.major, &version.minor, &version.patch}) {
        if (part != &version.major && (at == end || *at++ != '.')) return std::nullopt;
        const auto [after, fault] = std::from_chars(at, end, *part);
        if (fault != std::errc{} || *part < 0) return std::nullopt;
        at = after;
    }
    return at == end ? std::optional(version) : std::nullopt;
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
