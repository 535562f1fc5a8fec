#include "report/code128.h"

#include "foundation/values/digits.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace winvrx {

namespace {

/// The widths of the symbols 0 to 105.
constexpr std::array<std::string_view, 106> kSymbols = {
    "212222", "222122", "222221", "121223", "121322", "131222", "122213", "122312", "132212",
    "221213", "221312", "231212", "112232", "122132", "122231", "113222", "123122", "123221",
    "223211", "221132", "221231", "213212", "223112", "312131", "311222", "321122", "321221",
    "312212", "322112", "322211", "212123", "212321", "232121", "111323", "131123", "131321",
    "112313", "132113", "132311", "211313", "231113", "231311", "112133", "112331", "132131",
    "113123", "113321", "133121", "313121", "211331", "231131", "213113", "213311", "213131",
    "311123", "311321", "331121", "312113", "312311", "332111", "314111", "221411", "431111",
    "111224", "111422", "121124", "121421", "141122", "141221", "112214", "112412", "122114",
    "122411", "142112", "142211", "241211", "221114", "413111", "241112", "134111", "111242",
    "121142", "121241", "114212", "124112", "124211", "411212", "421112", "421211", "212141",
    "214121", "412121", "111143", "111341", "131141", "114113", "114311", "411113", "411311",
    "113141", "114131", "311141", "411131", "211412", "211214", "211232",
};
constexpr std::string_view kStop = "2331112";

constexpr std::size_t kStartB = 104;
constexpr std::size_t kStartC = 105;
constexpr std::size_t kCheckModulus = 103;

bool isPrintable(char c) {
    return c >= ' ' && c <= '~';
}

/// Start and values; empty where the text cannot be written.
std::vector<std::size_t> valuesOf(std::string_view text) {
    if (text.empty() || !std::ranges::all_of(text, isPrintable)) return {};
    const auto valueOf = [](char c, char first) { return static_cast<std::size_t>(c - first); };
    if (text.size() % 2 != 0 || !std::ranges::all_of(text, isDigit)) {
        std::vector<std::size_t> values = {kStartB};
        for (const char c : text)
            values.push_back(valueOf(c, ' '));
        return values;
    }
    std::vector<std::size_t> values = {kStartC};
    for (std::size_t at = 0; at < text.size(); at += 2)
        values.push_back(10 * valueOf(text[at], '0') + valueOf(text[at + 1], '0'));
    return values;
}

}  // namespace

std::vector<int> code128Bars(std::string_view text) {
    std::vector<std::size_t> values = valuesOf(text);
    if (values.empty()) return {};
    std::size_t sum = values.front();
    for (std::size_t place = 1; place < values.size(); ++place)
        sum += place * values[place];
    values.push_back(sum % kCheckModulus);
    std::vector<int> bars;
    const auto append = [&](std::string_view widths) {
        for (const char width : widths)
            bars.push_back(width - '0');
    };
    for (const std::size_t value : values)
        append(kSymbols[value]);
    append(kStop);
    return bars;
}

}  // namespace winvrx
