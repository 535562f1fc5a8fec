#include "foundation/files/record_file.h"

#include "foundation/files/file_faults.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

void requireFewLines(std::size_t count, FileFault::Operation operation,
                     const std::filesystem::path& file) {
    if (count > kMostLines) throw FileFault(operation, file, FileProblem::TooManyLines);
}

}  // namespace

std::string rawFieldOf(std::string_view lineBytes, Column column) {
    std::string field;
    if (lineBytes.size() >= column.start) field = lineBytes.substr(column.start - 1, column.width);
    field.resize(column.width, ' ');
    return field;
}

std::string fieldOf(std::string_view lineBytes, Column column) {
    if (lineBytes.size() < column.start) return {};
    return decodeWindows1252(trimmed(lineBytes.substr(column.start - 1, column.width)));
}

RecordLine::RecordLine(std::string existing, std::size_t width) : bytes_(std::move(existing)) {
    if (bytes_.size() < width) bytes_.resize(width, ' ');
}

void RecordLine::put(Column column, std::string_view utf8) {
    const std::string_view text = trimmed(utf8);
    if (text != fieldOf(bytes_, column)) putRaw(column, encodeWindows1252(text));
}

void RecordLine::putRaw(Column column, std::string_view bytes) {
    std::string field(bytes.substr(0, column.width));
    field.resize(column.width, ' ');
    if (bytes_.size() < column.end() - 1) bytes_.resize(column.end() - 1, ' ');
    bytes_.replace(column.start - 1, column.width, field);
}

std::vector<std::string> splitLines(std::string_view fileBytes) {
    std::vector<std::string> lines;
    while (!fileBytes.empty()) {
        const std::size_t end = std::min(fileBytes.find('\n'), fileBytes.size());
        std::string_view line = fileBytes.substr(0, end);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.emplace_back(line);
        fileBytes.remove_prefix(std::min(end + 1, fileBytes.size()));
    }
    return lines;
}

std::string joinedLines(const std::vector<std::string>& lineBytes) {
    std::string bytes;
    for (const std::string& line : lineBytes)
        bytes.append(line).append("\r\n");
    return bytes;
}

std::optional<std::vector<std::string>> RecordFile::linesIfAny() const {
    const auto bytes = files_.read(path_);
    if (!bytes) return std::nullopt;
    const auto ends = std::count(bytes->begin(), bytes->end(), '\n');
    requireFewLines(static_cast<std::size_t>(ends), FileFault::Operation::Read, path_);
    return splitLines(*bytes);
}

std::vector<std::string> RecordFile::lines() const {
    return linesIfAny().value_or(std::vector<std::string>());
}

std::vector<std::string> RecordFile::values() const {
    std::vector<std::string> values = lines();
    for (std::string& value : values)
        value = decodeWindows1252(trimmed(value));
    return values;
}

void RecordFile::append(std::string_view lineBytes) {
    std::vector<std::string> all = lines();
    all.emplace_back(lineBytes);
    rewrite(all);
}

void RecordFile::rewrite(const std::vector<std::string>& lineBytes) {
    requireFewLines(lineBytes.size(), FileFault::Operation::Write, path_);
    files_.replace(path_, joinedLines(lineBytes));
}

void RecordFile::rewriteValues(const std::vector<std::string>& utf8Values) {
    std::vector<std::string> encoded;
    encoded.reserve(utf8Values.size());
    for (const std::string& value : utf8Values)
        encoded.push_back(encodeWindows1252(value));
    rewrite(encoded);
}

}  // namespace winvrx
