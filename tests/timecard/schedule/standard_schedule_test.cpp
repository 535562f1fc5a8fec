#include "timecard/schedule/standard_schedule.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;

const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kEmployee = *EmployeeCode::parse("007");

std::string sampleLine() {
    return "08:0012:0013:0017:0010"
           "08:0012:00          "
           "AAAAABBBBB" +
           std::string(134, ' ') + "XYZ   ";
}

TEST(StandardSchedule, LineComesBackAsItStands) {
    const StandardSchedule schedule = decodeSchedule(sampleLine());
    EXPECT_EQ(schedule.weekday.afternoon.exit, parseTime("17:00"));
    EXPECT_EQ(schedule.saturday.morning.entry, parseTime("08:00"));
    EXPECT_FALSE(schedule.saturday.afternoon.complete());
    EXPECT_TRUE(schedule.saturdayIsNormal);
    EXPECT_FALSE(schedule.secondFlag);
    ASSERT_EQ(sampleLine().size(), kScheduleWidth);
    for (const std::string& line : {sampleLine(), sampleLine() + " e mais"})
        EXPECT_EQ(encode(decodeSchedule(line)), line);
}

TEST(StandardSchedule, ShortAndDamagedLinesGiveWhatTheyHold) {
    for (const char* line : {"", "08:00", "08:0012:0013:0017:001", "8:00 99:99aa:bb 7:30?"}) {
        const std::string written = encode(decodeSchedule(line));
        EXPECT_EQ(written.size(), kScheduleWidth) << line;
        EXPECT_EQ(decodeSchedule(written).weekday, decodeSchedule(line).weekday) << line;
    }
    const StandardSchedule damaged = decodeSchedule("8:00 99:99aa:bb 7:30?");
    EXPECT_EQ(damaged.weekday.morning.entry, parseTime("08:00"));
    EXPECT_FALSE(damaged.weekday.morning.exit);
    EXPECT_EQ(damaged.weekday.afternoon.exit, parseTime("07:30"));
    EXPECT_FALSE(damaged.saturdayIsNormal);
}

TEST(StandardSchedule, WhatIsNoTimeStaysUntilATimeIsPutThere) {
    std::string line = sampleLine();
    line.replace(5, 5, "12h\x81 ").replace(20, 1, "S").replace(22, 5, " 8:00");
    StandardSchedule schedule = decodeSchedule(line);
    EXPECT_FALSE(schedule.weekday.morning.exit);
    EXPECT_EQ(encode(schedule, line), line);
    EXPECT_EQ(decodeSchedule(encode(schedule)), schedule);

    schedule.secondFlag = true;
    schedule.weekday.morning.exit = parseTime("12:15");
    line.replace(5, 5, "12:15").replace(21, 1, "1");
    EXPECT_EQ(encode(schedule, line), line);
}

TEST(StandardSchedule, SavingReplacesTheFirstLineOnly) {
    TestWorkplace desk;
    EXPECT_FALSE(loadSchedule(desk.store(), {kCompany, kEmployee}));
    desk.file("01PadrHor007.pdx") = sampleLine() + "\r\nlinha alheia\r\n";
    StandardSchedule schedule = *loadSchedule(desk.store(), {kCompany, kEmployee});
    schedule.weekday.morning.entry = parseTime("07:30");
    saveSchedule(desk.store(), {kCompany, kEmployee}, schedule);
    std::string expected = sampleLine().replace(0, 5, "07:30");
    EXPECT_EQ(desk.file("01PadrHor007.pdx"), expected + "\r\nlinha alheia\r\n");
}

}  // namespace
}  // namespace winvrx
