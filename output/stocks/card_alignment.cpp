#include "output/stocks/card_alignment.h"

#include "foundation/values/text.h"
#include "output/stocks/card_stock.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace winvrx {

namespace {

constexpr Column kVertical{1, 10};
constexpr Column kHorizontal{11, std::string::npos};

/// The offsets' own column has no end: a new one stands behind a blank, as in the default line.
constexpr std::string_view kBeforeHorizontal = " ";

/// A decimal number, with a comma or a point; the twips are whole.
int offsetIn(std::string_view lineBytes, Column column) {
    std::string text = fieldOf(lineBytes, column);
    std::ranges::replace(text, ',', '.');
    double offset = kDefaultOffset;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), offset);
    const bool isNumber = error == std::errc() && end == text.data() + text.size() &&
                          text.find_first_not_of("-.0123456789") == std::string::npos;
    if (!isNumber) return kDefaultOffset;
    return static_cast<int>(std::lround(std::clamp<double>(offset, 0, kGreatestOffset)));
}

/// At least one for each entry.
std::vector<std::string> linesOf(const Store& store) {
    std::vector<std::string> lines = RecordFile(store, kAlignmentName).lines();
    if (lines.size() < kAlignmentEntries)
        lines.resize(kAlignmentEntries, lines.empty() ? encode(Offsets()) : lines.front());
    return lines;
}

}  // namespace

std::optional<std::size_t> alignmentEntryOf(std::string_view stockCode) {
    const auto found = std::ranges::find(kPrintOrder, stockCode);
    if (found == kPrintOrder.end()) return std::nullopt;
    return static_cast<std::size_t>(found - kPrintOrder.begin());
}

Offsets decodeOffsets(std::string_view lineBytes) {
    return {.vertical = offsetIn(lineBytes, kVertical),
            .horizontal = offsetIn(lineBytes, kHorizontal)};
}

std::string encode(const Offsets& offsets, std::string_view existing) {
    const bool isNew = trimmed(existing).empty();
    const Offsets before = decodeOffsets(existing);
    std::string line = !isNew && offsets.vertical == before.vertical
                           ? std::string(existing.substr(0, kVertical.width))
                           : std::to_string(offsets.vertical);
    const bool reachesHorizontal = existing.size() >= kHorizontal.start;
    if (!isNew && !reachesHorizontal && offsets.horizontal == before.horizontal) return line;
    line.resize(kVertical.width, ' ');
    if (reachesHorizontal && offsets.horizontal == before.horizontal)
        return line.append(existing.substr(kVertical.width));
    return line.append(kBeforeHorizontal).append(std::to_string(offsets.horizontal));
}

std::vector<Offsets> loadOffsets(const Store& store) {
    std::vector<Offsets> entries;
    for (const std::string& line : linesOf(store))
        if (entries.size() < kAlignmentEntries) entries.push_back(decodeOffsets(line));
    return entries;
}

void saveOffsets(const Store& store, std::size_t entry, const Offsets& offsets) {
    std::vector<std::string> lines = linesOf(store);
    lines.at(entry) = encode(offsets, lines.at(entry));
    RecordFile(store, kAlignmentName).rewrite(lines);
}

void removeOffsets(const Store& store) {
    (void)RecordFile(store, kAlignmentName).remove();
}

Alignment loadAlignment(const Store& store, const PrintScaleKey& key,
                        const AlignmentMemory& memory) {
    const auto entry = alignmentEntryOf(key.paper);
    const Offsets offsets = entry ? loadOffsets(store)[*entry] : Offsets();
    return {.horizontalTwips = offsets.horizontal,
            .verticalTwips = offsets.vertical,
            .lines = memory.lines,
            .scale = loadPrintScale(store, key)};
}

}  // namespace winvrx
