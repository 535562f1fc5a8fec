#include "report/print_scale.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace winvrx {

namespace {

constexpr int kHundred = 100;
constexpr std::size_t kMostDigits = 6;

std::optional<int> numberIn(std::string_view digits) {
    if (digits.size() > kMostDigits || !isDigits(digits)) return std::nullopt;
    return parseWholeNumber(digits, 0, std::numeric_limits<int>::max());
}

bool isWithin(const PrintScaleField& field, int value) {
    return field.least <= value && value <= field.greatest;
}

bool isOf(const PrintScaleKey& key, std::string_view lineBytes) {
    const auto line = decodePrintScale(lineBytes);
    return line && line->key == key;
}

/// Name and paper are stored as far as their columns go.
PrintScaleKey storedKey(const PrintScaleKey& key) {
    const auto stored = [](const std::string& text, Column column) {
        return std::string(trimmed(firstCharacters(trimmed(text), column.width)));
    };
    return {stored(key.printer, kScalePrinter), stored(key.paper, kScalePaper)};
}

}  // namespace

std::optional<int> parseHundredths(std::string_view text) {
    std::string_view digits = trimmed(text);
    const bool negative = digits.starts_with('-');
    if (negative) digits.remove_prefix(1);
    const std::size_t mark = digits.find_first_of(",.");
    const auto whole = numberIn(digits.substr(0, mark));
    std::string fraction = "00";
    if (mark != std::string_view::npos) fraction = digits.substr(mark + 1);
    if (fraction.size() == 1) fraction += '0';
    const auto rest = fraction.size() == 2 ? numberIn(fraction) : std::nullopt;
    if (!whole || !rest) return std::nullopt;
    const int value = *whole * kHundred + *rest;
    return negative ? -value : value;
}

std::string hundredthsText(int hundredths) {
    const int positive = std::abs(hundredths);
    return (hundredths < 0 ? "-" : "") + std::to_string(positive / kHundred) + "," +
           padded(positive % kHundred, 2);
}

bool isUsable(const PrintScale& scale) {
    return std::ranges::all_of(kPrintScaleFields, [&](const PrintScaleField& field) {
        return isWithin(field, scale.*field.member);
    });
}

std::optional<PrintScaleLine> decodePrintScale(std::string_view lineBytes) {
    PrintScaleLine line{{fieldOf(lineBytes, kScalePrinter), fieldOf(lineBytes, kScalePaper)}, {}};
    if (line.key.printer.empty() || line.key.paper.empty()) return std::nullopt;
    for (const PrintScaleField& field : kPrintScaleFields) {
        const auto value = parseHundredths(fieldOf(lineBytes, field.column));
        if (!value || !isWithin(field, *value)) return std::nullopt;
        line.scale.*field.member = *value;
    }
    return line;
}

std::string encode(const PrintScaleLine& line, std::string existing) {
    const std::size_t width = existing.empty() ? kPrintScaleWidth : existing.size();
    RecordLine bytes(std::move(existing), width);
    bytes.put(kScalePrinter, line.key.printer);
    bytes.put(kScalePaper, line.key.paper);
    for (const PrintScaleField& field : kPrintScaleFields) {
        const int value = line.scale.*field.member;
        if (parseHundredths(fieldOf(bytes.bytes(), field.column)) != value)
            bytes.put(field.column, hundredthsText(value));
    }
    return bytes.bytes();
}

PrintScale loadPrintScale(const Store& store, const PrintScaleKey& key) {
    const PrintScaleKey wanted = storedKey(key);
    for (const std::string& bytes : RecordFile(store, kPrintScaleName).lines())
        if (isOf(wanted, bytes)) return decodePrintScale(bytes)->scale;
    return {};
}

void savePrintScale(const Store& store, const PrintScaleLine& line) {
    RecordFile file(store, kPrintScaleName);
    const PrintScaleLine stored{storedKey(line.key), line.scale};
    std::vector<std::string> lines = file.lines();
    const auto found = std::ranges::find_if(
        lines, [&](const std::string& bytes) { return isOf(stored.key, bytes); });
    if (found == lines.end())
        lines.push_back(encode(stored));
    else
        *found = encode(stored, *found);
    file.rewrite(lines);
}

}  // namespace winvrx
