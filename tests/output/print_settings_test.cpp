#include "output/print_settings.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;

TEST(PrintSettings, AlignmentIsTheFirstEntryOrTheDefault) {
    struct Case {
        const char* content;
        int vertical;
        int horizontal;
    };
    for (const Case& one :
         {Case{"10         10\r\n", 10, 10}, Case{"250       1490\r\n10         10\r\n", 250, 1490},
          Case{"0         0\r\n", 0, 0}, Case{"99999     -40\r\n", kGreatestOffset, 0},
          Case{"abc       20x\r\n", kDefaultOffset, kDefaultOffset},
          Case{"30\r\n", 30, kDefaultOffset}, Case{"", kDefaultOffset, kDefaultOffset}}) {
        TestWorkplace desk;
        desk.file("Config") = one.content;
        const Alignment alignment = loadAlignment(desk.files, desk.session.folder);
        EXPECT_EQ(alignment.verticalTwips, one.vertical) << one.content;
        EXPECT_EQ(alignment.horizontalTwips, one.horizontal) << one.content;
        EXPECT_EQ(alignment.lines, 0);
    }
}

TEST(PrintSettings, PrinterIsTheStoredNameOrTheDefaultOne) {
    TestWorkplace desk;
    EXPECT_EQ(loadPrinterName(desk.files, desk.session.folder), "");
    desk.file("ConfigX") = "Padrao\r\n";
    EXPECT_EQ(loadPrinterName(desk.files, desk.session.folder), "");
    desk.file("ConfigX") = "HP LaserJet Escrit\xF3rio\r\n";
    EXPECT_EQ(loadPrinterName(desk.files, desk.session.folder), "HP LaserJet Escritório");
}

}  // namespace
}  // namespace winvrx
