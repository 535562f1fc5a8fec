#include "report/code128.h"

#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <string>

namespace winvrx {
namespace {

/// Reads bars by their edges, from one bar's left edge to the next but one's, as a scanner does:
/// what it has learnt of a symbol's shape comes from texts of one character.
std::string shapeAt(const std::vector<int>& bars, std::size_t symbol) {
    std::string shape;
    for (std::size_t i = 0; i < 6; ++i)
        shape += static_cast<char>('0' + bars[6 * symbol + i]);
    return shape;
}

TEST(Code128, KnownTextsHaveTheirBars) {
    struct Case {
        const char* text;
        const char* bars;
    };
    // Start, symbols, check symbol, stop, as the standard's tables give them.
    for (const Case& c : {Case{"", ""}, Case{"ação", ""},
                          Case{"00",
                               "211232"
                               "212222"
                               "222221"
                               "2331112"},
                          Case{"A",
                               "211214"
                               "111323"
                               "131123"
                               "2331112"},
                          // PJJ123C: check symbol 55 with start B is (104+48+84+126+68+90+114+245)
                          // modulo 103.
                          Case{"PJJ123C",
                               "211214"
                               "313121"
                               "112133"
                               "112133"
                               "123221"
                               "223211"
                               "221132"
                               "131321"
                               "311321"
                               "2331112"}}) {
        std::string widths;
        for (const int width : code128Bars(c.text))
            widths += static_cast<char>('0' + width);
        EXPECT_EQ(widths, c.bars) << c.text;
    }
}

/// Each pair of digits has a shape of its own, of eleven modules whose bars are an even count, and
/// is read back from within an access key, the check symbol summed anew.
TEST(Code128, AccessKeysAreReadBack) {
    std::map<std::string, int> pairs;
    for (int pair = 0; pair < 100; ++pair) {
        const std::string text = {static_cast<char>('0' + pair / 10),
                                  static_cast<char>('0' + pair % 10)};
        const std::string shape = shapeAt(code128Bars(text), 1);
        int modules = 0;
        for (const char width : shape)
            modules += width - '0';
        EXPECT_EQ(modules, 11) << text;
        EXPECT_EQ((shape[0] + shape[2] + shape[4] - 3 * '0') % 2, 0) << text;
        EXPECT_TRUE(pairs.emplace(shape, pair).second) << text;
    }
    for (const std::string key : {"35240311222333000181550010000012341000012345",
                                  "99999999999999999999999999999999999999999999",
                                  "00000000000000000000000000000000000000000000"}) {
        const auto bars = code128Bars(key);
        ASSERT_EQ(bars.size(), 6 * 24U + 7);
        EXPECT_EQ(std::accumulate(bars.begin(), bars.end(), 0), 24 * 11 + 13);
        std::string read;
        int sum = 105;
        for (std::size_t symbol = 1; symbol <= 22; ++symbol) {
            const int pair = pairs.at(shapeAt(bars, symbol));
            sum += static_cast<int>(symbol) * pair;
            read += static_cast<char>('0' + pair / 10);
            read += static_cast<char>('0' + pair % 10);
        }
        EXPECT_EQ(read, key);
        EXPECT_TRUE(sum % 103 > 99 || pairs.at(shapeAt(bars, 23)) == sum % 103) << key;
    }
}

}  // namespace
}  // namespace winvrx
