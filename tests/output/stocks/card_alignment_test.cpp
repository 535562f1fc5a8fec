#include "output/stocks/card_alignment.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;

constexpr const char* kDefaultLine = "10         10";

TEST(CardAlignment, AnEntryIsTwoOffsetsWithinTheirBounds) {
    struct Case {
        const char* line;
        Offsets offsets;
    };
    for (const Case& one :
         {Case{kDefaultLine, {10, 10}}, Case{"250       1490", {250, 1490}},
          Case{"0          0", {0, 0}}, Case{"99999     -40", {kGreatestOffset, 0}},
          Case{"99999999991", {kGreatestOffset, 1}}, Case{"12,5      70.25", {13, 70}},
          Case{"1499,6     -0.5", {1500, 0}}, Case{"1e2       inf", {10, 10}},
          Case{"1,2,3     .", {10, 10}}, Case{"abc       20x", {10, 10}}, Case{"30", {30, 10}},
          Case{"", {10, 10}}, Case{"20        30    junk", {20, 10}}}) {
        EXPECT_EQ(decodeOffsets(one.line), one.offsets) << one.line;
        const std::string kept = *one.line ? one.line : kDefaultLine;
        EXPECT_EQ(encode(one.offsets, one.line), kept);
        EXPECT_EQ(decodeOffsets(encode(one.offsets)), one.offsets) << one.line;
    }
    EXPECT_EQ(encode(Offsets()), kDefaultLine);
    EXPECT_EQ(encode({.vertical = 30, .horizontal = 10}, "abc       20x"), "30        20x");
    EXPECT_EQ(encode({.vertical = 10, .horizontal = 30}, "abc       20x"), "abc        30");
}

TEST(CardAlignment, EachStockHasItsEntryAndTheOthersStay) {
    TestWorkplace desk;
    EXPECT_EQ(loadOffsets(desk.store()), std::vector<Offsets>(kAlignmentEntries));
    saveOffsets(desk.store(), *alignmentEntryOf("03"), {70, 1500});
    std::string expected;
    for (std::size_t entry = 0; entry < 16; ++entry)
        expected += std::string(entry == 2 ? "70         1500" : kDefaultLine) + "\r\n";
    EXPECT_EQ(desk.file("Config"), expected);

    desk.file("Config") = "strange\r\n" + expected + "further\r\n";
    saveOffsets(desk.store(), 1, {10, 50});
    EXPECT_EQ(desk.file("Config").substr(0, 24), "strange\r\n10         50\r\n");
    EXPECT_TRUE(desk.file("Config").ends_with("\r\nfurther\r\n"));
    EXPECT_EQ(loadOffsets(desk.store())[3], (Offsets{70, 1500}));
    desk.file("Config") = "250       40\r\n30\r\n";
    EXPECT_EQ(loadOffsets(desk.store())[1], (Offsets{30, 10}));
    EXPECT_EQ(loadOffsets(desk.store())[15], (Offsets{250, 40}));
    EXPECT_EQ(alignmentEntryOf("20"), 15U);
    EXPECT_EQ(alignmentEntryOf("14"), std::nullopt);
}

TEST(CardAlignment, AnAlignmentIsStockLinesAndPrinterTogether) {
    TestWorkplace desk;
    const PrintScaleLine line{{"HP-Balcao", "05"}, {9975, 10040, -150, 25}};
    savePrintScale(desk.store(), line);
    saveOffsets(desk.store(), *alignmentEntryOf("05"), {50, 90});
    const Alignment both = loadAlignment(desk.store(), line.key, {.lines = 3});
    EXPECT_EQ(both, (Alignment{90, 50, 3, line.scale}));
    const Alignment other = loadAlignment(desk.store(), {"Epson", "01"}, {.lines = 0});
    EXPECT_EQ(other, (Alignment{10, 10, 0, {}}));
}

}  // namespace
}  // namespace winvrx
