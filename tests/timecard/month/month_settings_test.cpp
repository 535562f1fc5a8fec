#include "timecard/month/month_settings.h"

#include "tests/support/test_workplace.h"
#include "timecard/month/selected_month.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;
using namespace std::chrono_literals;

MonthSettings unusualSettings() {
    MonthSettings settings;
    settings.month = 2024y / 3;
    settings.setHoliday(*parseDate("29/03/2024"), true);
    settings.overtime.minimumPercent = 60;
    settings.overtime.nightMinimumPercent = 70;
    settings.overtime.maximumPercent = 120;
    settings.overtime.nightMaximumPercent = 130;
    settings.recordTicks = false;
    settings.overtime.differentiatedPercent = true;
    settings.overtime.mode = OvertimeMode::SingleLevel;
    settings.overtime.totalsFormat = TotalsFormat::DecimalHours;
    settings.overtime.threshold = 90min;
    settings.closingDay = 21;
    settings.fixedMonth = false;
    return settings;
}

TEST(MonthSettings, RecordHasItsValuesOnTheirLines) {
    TestWorkplace desk;
    const MonthSettings settings = unusualSettings();
    desk.file("03-2024ds.rdx") = std::string(53, '\n') + "de outra vers\xE3o\n\n";
    saveMonthSettings(desk.store(), settings);
    const auto lines = splitLines(desk.file("03-2024ds.rdx"));
    ASSERT_EQ(lines.size(), 55U);
    // March 2024 begins on a Friday, cell 5 from 0: day 29 is cell 33, line 34.
    for (std::size_t cell = 0; cell < kHolidayCells; ++cell)
        EXPECT_EQ(lines[cell], cell == 33 ? "1" : "0") << "cell " << cell;
    EXPECT_THAT(std::vector(lines.begin() + 42, lines.end()),
                ::testing::ElementsAre("60", "70", "120", "130", "0", "1", "1", "1", "01:30", "21",
                                       "0", "de outra vers\xE3o", ""));
    EXPECT_EQ(loadMonthSettings(desk.store(), 2024y / 3), settings);
}

TEST(MonthSettings, WhatIsNoNumberOfItsRangeCountsAsDefault) {
    MonthSettings defaults;
    defaults.month = 2024y / 3;
    TestWorkplace desk;
    EXPECT_FALSE(findMonthRecord(desk.store(), 2024y / 3));
    EXPECT_EQ(loadMonthSettings(desk.store(), 2024y / 3), defaults);
    for (const char* junk : {"x", "-1", "1000", "50%", "5 0", "99999999999999999999", ""}) {
        std::string& file = desk.file("03-2024ds.rdx");
        file.clear();
        for (int line = 0; line < 53; ++line)
            file.append(junk).append("\n");
        EXPECT_EQ(loadMonthSettings(desk.store(), 2024y / 3), defaults) << junk;
    }
    desk.file("03-2024ds.rdx") = "0\r\n0\r\n0\r\n0\r\n0\r\n 1";
    MonthSettings cutShort = defaults;
    cutShort.setHoliday(*parseDate("01/03/2024"), true);
    EXPECT_EQ(loadMonthSettings(desk.store(), 2024y / 3), cutShort);
}

TEST(MonthSettings, ALineWhoseMeaningStaysKeepsItsBytes) {
    TestWorkplace desk;
    std::vector<std::string> lines(54, "0");
    lines[2] = "sim";
    lines[42] = "50%";
    lines[43] = " 070";
    lines[50] = "1,5";
    lines[53] = "alheia \x81";
    desk.file("03-2024ds.rdx") = joinedLines(lines);
    MonthSettings settings = loadMonthSettings(desk.store(), 2024y / 3);
    settings.overtime.maximumPercent = 120;
    saveMonthSettings(desk.store(), settings);
    lines[44] = "120";
    EXPECT_EQ(splitLines(desk.file("03-2024ds.rdx")), lines);
    settings.overtime.minimumPercent = 60;
    saveMonthSettings(desk.store(), settings);
    lines[42] = "60";
    EXPECT_EQ(splitLines(desk.file("03-2024ds.rdx")), lines);
}

TEST(MonthSettings, LinesThatAreNotUnderstoodAreNamed) {
    TestWorkplace desk;
    const auto unread = [&](const std::vector<std::string>& lines) {
        desk.file("03-2024ds.rdx") = joinedLines(lines);
        return findMonthRecord(desk.store(), 2024y / 3).value_or(MonthRecord()).unread;
    };
    std::vector<std::string> lines(53, " 1 ");
    EXPECT_THAT(unread(lines), ::testing::IsEmpty());
    EXPECT_THAT(unread({"1", "0", "", "  "}), ::testing::IsEmpty());
    lines[0] = "2";
    lines[42] = "1000";
    lines[48] = "x\x01";
    lines[51] = "0";
    lines.insert(lines.end(), {"alheia \xE3", "", "1"});
    EXPECT_THAT(unread(lines),
                ::testing::ElementsAre(UnreadLine{1, "2"}, UnreadLine{43, "1000"},
                                       UnreadLine{49, "x·"}, UnreadLine{52, "0"},
                                       UnreadLine{54, "alheia ã"}, UnreadLine{56, "1"}));
}

TEST(MonthSettings, CellsFollowTheCalendar) {
    struct Case {
        const char* date;
        std::size_t cell;
    };
    for (const Case& c : {Case{"01/02/2026", 0}, Case{"28/02/2026", 27},  // four rows
                          Case{"01/06/2024", 6}, Case{"30/06/2024", 35},  // six rows
                          Case{"29/02/2024", 32}})
        EXPECT_EQ(holidayCellOf(*parseDate(c.date)), c.cell) << c.date;
}

TEST(MonthSettings, HolidaysAreThoseOfTheMonthAlone) {
    MonthSettings settings;
    settings.month = 2024y / 2;
    settings.holidayCells.fill(true);
    EXPECT_EQ(settings.holidays().size(), 29U);
    EXPECT_FALSE(settings.isHoliday(*parseDate("01/03/2024")));
    settings.holidayCells.fill(false);
    settings.setHoliday(*parseDate("29/02/2024"), true);
    settings.setHoliday(*parseDate("01/03/2024"), true);
    EXPECT_THAT(settings.holidays(), ::testing::ElementsAre(*parseDate("29/02/2024")));
}

TEST(SelectedMonth, KeepsMonthAndFilterAndMistrustsTheFile) {
    TestWorkplace desk;
    EXPECT_FALSE(loadSelectedMonth(desk.store()));
    saveSelectedMonth(desk.store(), {2024y / 3, ShiftFilter::Dois});
    EXPECT_EQ(desk.file("DataIde.ivc"), "03-2024\r\nDois\r\n");
    const auto selected = loadSelectedMonth(desk.store());
    ASSERT_TRUE(selected);
    EXPECT_EQ(selected->month, 2024y / 3);
    EXPECT_EQ(selected->shiftFilter, ShiftFilter::Dois);
    for (const char* junk : {"", "\r\n", "13-2024", "03/2024", "março/2024\r\nDois"}) {
        desk.file("DataIde.ivc") = junk;
        EXPECT_FALSE(loadSelectedMonth(desk.store())) << junk;
    }
    desk.file("DataIde.ivc") = "03-2024\nNenhum";
    EXPECT_EQ(loadSelectedMonth(desk.store())->shiftFilter, ShiftFilter::Todos);
}

}  // namespace
}  // namespace winvrx
