#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Text is UTF-8 in memory and Windows-1252 on disk. These functions are the only bridge. A width is
// always a count of characters, which on disk is a count of bytes.

namespace winvrx {

/// Windows-1252 bytes of `utf8`. Throws TextFault when a character has no place in the code page
/// or is a control character: nothing is replaced silently.
[[nodiscard]] std::string encodeWindows1252(std::string_view utf8);

/// UTF-8 of `bytes`. Any byte is accepted; the five bytes that the code page leaves undefined come
/// back as the control characters of the same number.
[[nodiscard]] std::string decodeWindows1252(std::string_view bytes);

/// Whether the bytes are well-formed UTF-8.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Number of characters in `utf8`.
[[nodiscard]] std::size_t characterCount(std::string_view utf8);

/// The first `count` characters of `utf8`.
[[nodiscard]] std::string_view firstCharacters(std::string_view utf8, std::size_t count);

/// A text for a message: the first forty characters and "…" of a longer one.
[[nodiscard]] std::string shortened(std::string_view utf8);

/// What can be shown of bytes that nobody understands: their text, a dot for each control
/// character, "…" where it is cut.
[[nodiscard]] std::string readableText(std::string_view windows1252);

/// `text` without leading and trailing blanks.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// `text` padded with blanks on the right to `width` characters, or cut to it.
[[nodiscard]] std::string fitted(std::string_view utf8, std::size_t width);
/// The same behind what `line` holds.
void appendFitted(std::string& line, std::string_view utf8, std::size_t width);

/// `number` in decimal with at least `digits` digits, zeros in front.
[[nodiscard]] std::string padded(int number, int digits);

/// A decimal number from `lowest` to `highest`, blanks around it allowed; nullopt for anything
/// else.
[[nodiscard]] std::optional<int> parseWholeNumber(std::string_view text, int lowest, int highest);

/// The digits of `text` alone.
[[nodiscard]] std::string digitsIn(std::string_view text);

/// "1 empresa", "12 empresas"; `many` for a plural that takes more than an "s".
[[nodiscard]] std::string countOf(std::integral auto count, std::string_view one,
                                  std::string_view many = {}) {
    const bool takesS = count != 1 && many.empty();
    return std::to_string(count).append(" ").append(count == 1 || takesS ? one : many) +
           (takesS ? "s" : "");
}

/// The texts of `parts` with `between` between them; empty ones are left out.
template <typename Parts, typename TextOf = std::identity>
[[nodiscard]] std::string joined(const Parts& parts, std::string_view between, TextOf textOf = {}) {
    std::string text;
    for (const auto& part : parts) {
        const auto& one = std::invoke(textOf, part);
        if (!one.empty()) text.append(text.empty() ? "" : between).append(one);
    }
    return text;
}
[[nodiscard]] std::string joined(std::initializer_list<std::string_view> parts,
                                 std::string_view between);

/// Upper-case form, Portuguese accented letters included.
[[nodiscard]] std::string upperCase(std::string_view utf8);

/// Form for searching and collating: lower case, accents removed.
[[nodiscard]] std::string foldedForSearch(std::string_view utf8);

/// True when each blank-separated word of `wanted` occurs in `text`; accents and case do not count.
[[nodiscard]] bool matchesSearch(std::string_view text, std::string_view wanted);

}  // namespace winvrx
