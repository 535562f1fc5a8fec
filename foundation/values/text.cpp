#include "foundation/values/text.h"

#include "foundation/values/digits.h"
#include "foundation/values/faults.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace winvrx {

namespace {

/// Code points of the bytes 0x80 to 0x9F; the other bytes stand for themselves.
constexpr std::array<char32_t, 32> kWindows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kInvalid = 0xFFFD;

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Reads one code point at `position` and moves past it; a damaged sequence yields kInvalid.
char32_t nextCodePoint(std::string_view utf8, std::size_t& position) {
    const auto lead = static_cast<unsigned char>(utf8[position++]);
    if (lead < 0x80) return lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : -1;
    if (following < 0 || lead > 0xF4) return kInvalid;
    static constexpr std::array<char32_t, 4> kLowest = {0, 0x80, 0x800, 0x10000};
    char32_t value = lead & (0x3FU >> following);
    for (int i = 0; i < following; ++i) {
        if (position >= utf8.size() || !isContinuation(utf8[position])) return kInvalid;
        value = (value << 6U) | (static_cast<unsigned char>(utf8[position++]) & 0x3FU);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < kLowest[static_cast<std::size_t>(following)] || value > 0x10FFFF || surrogate)
        return kInvalid;
    return value;
}

void appendUtf8(std::string& out, char32_t codePoint) {
    const auto byte = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
    if (codePoint < 0x80) {
        byte(codePoint);
    } else if (codePoint < 0x800) {
        byte(0xC0U | (codePoint >> 6U));
        byte(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        byte(0xE0U | (codePoint >> 12U));
        byte(0x80U | ((codePoint >> 6U) & 0x3FU));
        byte(0x80U | (codePoint & 0x3FU));
    } else {
        byte(0xF0U | (codePoint >> 18U));
        byte(0x80U | ((codePoint >> 12U) & 0x3FU));
        byte(0x80U | ((codePoint >> 6U) & 0x3FU));
        byte(0x80U | (codePoint & 0x3FU));
    }
}

bool isControl(char32_t codePoint) {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

/// A control character, or a byte that the code page leaves undefined.
bool isUnprintable(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    const bool high = value >= 0x80 && value < 0xA0;
    return isControl(high ? kWindows1252High[value - 0x80U] : value);
}

char toByte(char32_t codePoint, std::string_view whole) {
    if (isControl(codePoint))
        throw TextFault("control character in \"" + std::string(whole) + "\"",
                        "O texto contém quebra de linha ou outro caractere de controle.");
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
        return static_cast<char>(codePoint);
    const auto* found = std::find(kWindows1252High.begin(), kWindows1252High.end(), codePoint);
    if (found == kWindows1252High.end())
        throw TextFault(
            "character outside Windows-1252 in \"" + std::string(whole) + "\"",
            "O texto \"" + std::string(whole) + "\" contém um caractere que não pode ser gravado.");
    return static_cast<char>(0x80 + (found - kWindows1252High.begin()));
}

char32_t lowerOf(char32_t c) {
    const bool latinCapital = (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    return (c >= 'A' && c <= 'Z') || latinCapital ? c + 0x20 : c;
}

char32_t upperOf(char32_t c) {
    const bool latinSmall = (c >= 0xE0 && c <= 0xFE && c != 0xF7);
    return (c >= 'a' && c <= 'z') || latinSmall ? c - 0x20 : c;
}

/// The letter under the accent, for a small Latin-1 letter.
char32_t withoutAccent(char32_t c) {
    static constexpr std::string_view kBase = "aaaaaaaceeeeiiiidnooooo/ouuuuyby";
    return c >= 0xE0 && c <= 0xFF ? static_cast<char32_t>(kBase[c - 0xE0]) : c;
}

template <typename Change>
std::string mapped(std::string_view utf8, Change change) {
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();)
        appendUtf8(result, change(nextCodePoint(utf8, position)));
    return result;
}

}  // namespace

std::string encodeWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();)
        bytes.push_back(toByte(nextCodePoint(utf8, position), utf8));
    return bytes;
}

std::string decodeWindows1252(std::string_view bytes) {
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(bytes.begin(), bytes.end(), isAscii)) return std::string(bytes);
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        const bool high = value >= 0x80 && value < 0xA0;
        appendUtf8(utf8, high ? kWindows1252High[value - 0x80U] : value);
    }
    return utf8;
}

std::string readableText(std::string_view windows1252) {
    constexpr std::size_t kMost = 80;
    constexpr char kMiddleDot = '\xB7';
    std::string bytes(trimmed(windows1252).substr(0, kMost));
    for (char& byte : bytes)
        if (isUnprintable(byte)) byte = kMiddleDot;
    return decodeWindows1252(bytes).append(trimmed(windows1252).size() > kMost ? "…" : "");
}

std::string shortened(std::string_view utf8) {
    constexpr std::size_t kMost = 40;
    const std::string_view shown = firstCharacters(utf8, kMost);
    return std::string(shown) + (shown.size() < utf8.size() ? "…" : "");
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t position = 0; position < bytes.size();)
        if (nextCodePoint(bytes, position) == kInvalid) return false;
    return true;
}

std::size_t characterCount(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return !isContinuation(c); }));
}

std::string_view firstCharacters(std::string_view utf8, std::size_t count) {
    if (utf8.size() <= count) return utf8;
    std::size_t position = 0;
    for (; position < utf8.size(); ++position)
        if (!isContinuation(utf8[position]) && count-- == 0) break;
    return utf8.substr(0, position);
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string fitted(std::string_view utf8, std::size_t width) {
    std::string result;
    appendFitted(result, utf8, width);
    return result;
}

void appendFitted(std::string& line, std::string_view utf8, std::size_t width) {
    const std::string_view shown = firstCharacters(utf8, width);
    line.append(shown).append(width - characterCount(shown), ' ');
}

std::string padded(int number, int digits) {
    std::string text = std::to_string(number);
    const auto wanted = static_cast<std::size_t>(digits);
    if (text.size() < wanted) text.insert(0, wanted - text.size(), '0');
    return text;
}

std::optional<int> parseWholeNumber(std::string_view text, int lowest, int highest) {
    const std::string_view digits = trimmed(text);
    int number = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = fault == std::errc() && end == digits.data() + digits.size();
    if (!whole || number < lowest || number > highest) return std::nullopt;
    return number;
}

std::string digitsIn(std::string_view text) {
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), isDigit);
    return digits;
}

std::string joined(std::initializer_list<std::string_view> parts, std::string_view between) {
    return joined<std::initializer_list<std::string_view>>(parts, between);
}

std::string upperCase(std::string_view utf8) {
    return mapped(utf8, upperOf);
}

std::string foldedForSearch(std::string_view utf8) {
    return mapped(utf8, [](char32_t c) { return withoutAccent(lowerOf(c)); });
}

bool matchesSearch(std::string_view text, std::string_view wanted) {
    const std::string in = foldedForSearch(text);
    const std::string words = foldedForSearch(wanted);
    for (std::size_t start = 0; start < words.size();) {
        const std::size_t end = std::min(words.find(' ', start), words.size());
        if (in.find(words.substr(start, end - start)) == std::string::npos) return false;
        start = end + 1;
    }
    return true;
}

}  // namespace winvrx
