#include "report/print_scale.h"

#include "report/print_calibration.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;

const std::string kLine =
    "HP-Balcao                                                   05 99,75   100,40  -1,50   0,25   "
    " ";
const PrintScaleLine kRecord{{"HP-Balcao", "05"}, {9975, 10040, -150, 25}};

TEST(PrintScale, HundredthsAreReadAsTheyAreTyped) {
    struct Case {
        const char* text;
        std::optional<int> value;
    };
    for (const Case& one :
         {Case{"100", 10000}, Case{"99,5", 9950}, Case{"99.55", 9955}, Case{" -1,05 ", -105},
          Case{"-0,05", -5}, Case{"0", 0}, Case{"", std::nullopt}, Case{"-", std::nullopt},
          Case{"1,", std::nullopt}, Case{",5", std::nullopt}, Case{"1,234", std::nullopt},
          Case{"1,5mm", std::nullopt}, Case{"1 5", std::nullopt}, Case{"--1", std::nullopt},
          Case{"1,-5", std::nullopt}, Case{"9999999", std::nullopt}}) {
        EXPECT_EQ(parseHundredths(one.text), one.value) << one.text;
    }
    for (const int value : {0, 5, -5, 100, 9975, -12345})
        EXPECT_EQ(parseHundredths(hundredthsText(value)), value);
    EXPECT_EQ(hundredthsText(-5), "-0,05");
    EXPECT_EQ(hundredthsText(10025), "100,25");
}

TEST(PrintScale, ALineIsReadAndWrittenByItsColumns) {
    EXPECT_EQ(kLine.size(), kPrintScaleWidth);
    EXPECT_EQ(decodePrintScale(kLine), kRecord);
    EXPECT_EQ(encode(kRecord), kLine);
    EXPECT_EQ(encode(kRecord, kLine + "junk"), kLine + "junk");
    std::string other = kLine;
    other.replace(63, 8, "99.75 \t ");
    for (const std::string& damaged :
         {std::string(), std::string("HP-Balcao"), kLine.substr(0, 80),
          std::string(60, ' ') + kLine.substr(60), "HP" + std::string(61, ' ') + kLine.substr(63),
          std::string(kLine).replace(63, 6, "89,99 "), std::string(kLine).replace(79, 6, "50,01 "),
          other})
        EXPECT_EQ(decodePrintScale(damaged), std::nullopt) << damaged;
}

TEST(PrintScale, EachPrinterAndStockHasALineOfItsOwn) {
    TestWorkplace desk;
    EXPECT_EQ(loadPrintScale(desk.store(), kRecord.key), PrintScale());
    desk.file("EscalaImpressao") = "junk\r\n" + kLine + "kept\r\n";
    EXPECT_EQ(loadPrintScale(desk.store(), kRecord.key), kRecord.scale);
    EXPECT_EQ(loadPrintScale(desk.store(), {"HP-Balcao", "01"}), PrintScale());
    EXPECT_EQ(loadPrintScale(desk.store(), {"Epson", "05"}), PrintScale());

    PrintScaleLine changed = kRecord;
    changed.scale.verticalOffset = 30;
    savePrintScale(desk.store(), changed);
    savePrintScale(desk.store(), {{"Impressão", "05"}, {}});
    const std::string bytes = desk.file("EscalaImpressao");
    EXPECT_TRUE(bytes.starts_with("junk\r\nHP-Balcao"));
    EXPECT_NE(bytes.find("-1,50   0,30    kept\r\nImpress\xE3o"), std::string::npos) << bytes;
    EXPECT_EQ(loadPrintScale(desk.store(), kRecord.key), changed.scale);

    const PrintScaleKey longName{std::string(90, 'x'), "05"};
    savePrintScale(desk.store(), {longName, kRecord.scale});
    EXPECT_EQ(loadPrintScale(desk.store(), longName), kRecord.scale);
    savePrintScale(desk.store(), {longName, {}});
    EXPECT_EQ(loadPrintScale(desk.store(), longName), PrintScale());
}

/// Where a printer that errs by this scale and offset puts a mark, hundredths of a millimetre.
int foundAt(int belongs, double scale, int offset) {
    return static_cast<int>(belongs * scale + offset + 0.5);
}

TEST(Calibration, TheCorrectionPutsEveryPlaceWhereItBelongs) {
    for (const auto& [scale, offset] :
         {std::pair(1.0, 0), std::pair(1.0, 150), std::pair(0.985, -220), std::pair(1.02, 480),
          std::pair(1.0999, -1000), std::pair(0.91, 2500)}) {
        const auto correction = scaleFrom({.topToA = foundAt(kCrossNear, scale, offset),
                                           .topToC = foundAt(kCrossDown, scale, offset)});
        ASSERT_TRUE(correction) << scale;
        for (const int place : {500, kCrossNear, 14850, kCrossDown, 29000}) {
            const double sent =
                place * (correction->verticalScale / 10000.0) + correction->verticalOffset;
            constexpr double kTolerance = 3;  // 0.03 mm: the scale's last digit over the sheet
            EXPECT_NEAR(sent * scale + offset, place, kTolerance) << scale << " " << place;
        }
    }
    EXPECT_EQ(scaleFrom({}), PrintScale());
}

TEST(Calibration, ImpossibleDistancesGiveNothing) {
    for (const auto& [near, far] :
         {std::pair(3000, 3000), std::pair(18000, 3000), std::pair(3000, 21000),
          std::pair(3000, 15000), std::pair(9000, 24000), std::pair(0, 0), std::pair(-99, 99)})
        EXPECT_EQ(scaleFrom({.leftToA = near, .leftToB = far}), std::nullopt) << near << " " << far;
    EXPECT_EQ(scaleFrom({.topToC = 100}), std::nullopt);
    EXPECT_EQ(scaleFrom({.leftToA = 3100, .leftToB = 18100, .topToA = 3000, .topToC = 26230}),
              (PrintScale{10000, 9901, -100, 30}));
}

}  // namespace
}  // namespace winvrx
