#pragma once

#include "foundation/files/record_fields.h"
#include "foundation/values/faults.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

// A list that the operator keeps: companies, employees, local holidays. A further one is a record
// with its RecordLayout and a function keyOf(record), which gives what tells a line from the
// others, a code or a day, or nullopt for a record that makes no sense.

namespace winvrx {

/// A line of a list as it stands on disk, and the record that it holds. A line without a key is
/// kept as it stands: it can be shown and deleted, but not selected or changed.
template <typename Record>
struct StoredLine {
    std::string bytes;
    Record record;

    [[nodiscard]] auto key() const { return keyOf(record); }
    [[nodiscard]] bool isKnown() const { return key().has_value(); }
    [[nodiscard]] bool operator==(const StoredLine& other) const { return bytes == other.bytes; }
};

template <typename Record>
[[nodiscard]] StoredLine<Record> lineFrom(std::string bytes) {
    Record record = decode<Record>(bytes);
    return {std::move(bytes), std::move(record)};
}

/// The line of a record, built upon `existing` as `encode` does.
template <typename Record>
[[nodiscard]] StoredLine<Record> lineOf(const Record& record, std::string existing = {}) {
    return lineFrom<Record>(encode(record, std::move(existing)));
}

/// The keys that the lines have.
template <typename Record>
[[nodiscard]] auto keysOf(const std::vector<StoredLine<Record>>& lines) {
    std::set<typename decltype(keyOf(std::declval<Record>()))::value_type> keys;
    for (const auto& line : lines)
        if (auto key = line.key()) keys.insert(*std::move(key));
    return keys;
}

/// The line of that key; nullptr when none has it. No key is no line's.
template <typename Record, typename Key>
[[nodiscard]] const StoredLine<Record>* findLine(const std::vector<StoredLine<Record>>& lines,
                                                 const Key& key) {
    const auto found = std::ranges::find_if(
        lines, [&](const auto& line) { return line.key() && line.key() == key; });
    return found == lines.end() ? nullptr : &*found;
}

/// The line at `position`; throws Fault when it is not the one that the screen shows there.
template <typename Record>
[[nodiscard]] StoredLine<Record>& lineAsShown(std::vector<StoredLine<Record>>& lines,
                                              const std::vector<StoredLine<Record>>& shown,
                                              std::size_t position) {
    if (position >= lines.size() || position >= shown.size() || lines[position] != shown[position])
        throw changedElsewhere("line " + std::to_string(position + 1) + " of the list");
    return lines[position];
}

/// The same for a line that is to be changed, and so must have a key.
template <typename Record>
[[nodiscard]] StoredLine<Record>& knownLineAsShown(std::vector<StoredLine<Record>>& lines,
                                                   const std::vector<StoredLine<Record>>& shown,
                                                   std::size_t position) {
    StoredLine<Record>& line = lineAsShown(lines, shown, position);
    if (!line.key())
        throw Fault("list line without a key: " + line.bytes,
                    "Esta linha da lista não tem um código válido.");
    return line;
}

/// The lowest code from 1 on that is not among those taken; nullopt when all are.
template <typename Code>
[[nodiscard]] std::optional<Code> lowestFreeCode(const std::set<Code>& taken) {
    for (int number = 1; number <= Code::kHighest; ++number)
        if (const auto code = Code::fromNumber(number); !taken.contains(*code)) return code;
    return std::nullopt;
}

/// The file of such a list. All functions throw FileFault.
template <typename Record>
class LineFile {
  public:
    using Lines = std::vector<StoredLine<Record>>;

    explicit LineFile(RecordFile file) : file_(std::move(file)) {}

    /// In file order; empty when there is no file.
    [[nodiscard]] Lines load() const { return loadIfAny().value_or(Lines()); }

    /// nullopt when there is no file.
    [[nodiscard]] std::optional<Lines> loadIfAny() const {
        auto stored = file_.linesIfAny();
        if (!stored) return std::nullopt;
        Lines lines;
        lines.reserve(stored->size());
        for (std::string& bytes : *stored)
            lines.push_back(lineFrom<Record>(std::move(bytes)));
        return lines;
    }

    void save(const Lines& lines) { file_.rewrite(bytesOf(lines)); }

    /// What `save` would write, for a caller that writes more along with the list.
    [[nodiscard]] FileSystem::NewContent contentOf(const Lines& lines) const {
        return {file_.path(), joinedLines(bytesOf(lines))};
    }

  private:
    [[nodiscard]] static std::vector<std::string> bytesOf(const Lines& lines) {
        std::vector<std::string> bytes;
        bytes.reserve(lines.size());
        std::ranges::transform(lines, std::back_inserter(bytes), &StoredLine<Record>::bytes);
        return bytes;
    }

    RecordFile file_;
};

}  // namespace winvrx
