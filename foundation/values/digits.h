#pragma once

#include <algorithm>
#include <string_view>

namespace winvrx {

[[nodiscard]] constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether the text is digits alone; an empty one is not.
[[nodiscard]] constexpr bool isDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, isDigit);
}

}  // namespace winvrx
