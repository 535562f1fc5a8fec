#include "foundation/values/faults.h"
#include "fuzz/invariant.h"

#include <algorithm>

using namespace winvrx;
using fuzz::require;

namespace {

/// Everything but the line ends.
std::string contentOf(std::string_view bytes) {
    std::string content(bytes);
    std::erase_if(content, [](char c) { return c == '\r' || c == '\n'; });
    return content;
}

void checkLines(std::string_view bytes) {
    const auto lines = splitLines(bytes);
    const std::string joined = joinedLines(lines);
    require(splitLines(joined) == lines, "lines come back");
    require(contentOf(joined) == contentOf(bytes), "nothing is lost between the lines");
}

void checkColumn(std::string_view line, Column column) {
    RecordLine record(std::string(line), column.end());
    const std::string before = record.bytes();
    record.put(column, fieldOf(line, column));
    require(record.bytes() == before, "a field put back keeps its bytes");
    record.putRaw(column, rawFieldOf(line, column));
    require(record.bytes() == before, "raw bytes put back keep the line");
}

/// `typed` is taken for UTF-8.
void checkTyped(std::string_view typed, Column column) {
    RecordLine record(column.end() + 1);
    const std::string before = record.bytes();
    try {
        record.put(column, typed);
        const auto cut = firstCharacters(trimmed(typed), column.width);
        require(fieldOf(record.bytes(), column) == trimmed(cut), "what was typed is read back");
        require(record.bytes().size() == before.size(), "a column keeps its width");
    } catch (const TextFault&) {
        require(record.bytes() == before, "a refused text changes nothing");
    }
}

void checkText(std::string_view bytes) {
    const std::string utf8 = decodeWindows1252(bytes);
    require(characterCount(utf8) == bytes.size(), "a byte is a character");
    try {
        require(encodeWindows1252(utf8) == bytes, "text comes back");
    } catch (const TextFault&) {
        // Control characters are read, never written.
    }
    const std::string shown = readableText(bytes);
    require(characterCount(shown) <= 81, "what is shown is short");
    (void)encodeWindows1252(shown);
    (void)matchesSearch(utf8, shown);
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    constexpr std::size_t kHead = 2;
    if (bytes.size() < kHead) return;
    const auto number = [](char byte) { return std::size_t{1} + static_cast<unsigned char>(byte); };
    const Column column{number(bytes[0]), number(bytes[1])};
    bytes.remove_prefix(kHead);
    checkLines(bytes);
    checkColumn(bytes, column);
    checkTyped(bytes, column);
    checkText(bytes);
}
