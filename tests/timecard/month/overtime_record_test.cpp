#include "timecard/month/overtime_record.h"

#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::TestWorkplace;
using namespace std::chrono_literals;

const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");

OvertimeLine unusualLine() {
    return {2024y / 3,
            {.minimumPercent = 60,
             .nightMinimumPercent = 7,
             .maximumPercent = 120,
             .nightMaximumPercent = 130}};
}

TEST(OvertimeRecord, ALineHasItsFiguresInTheirColumns) {
    EXPECT_EQ(encode(unusualLine()), "03-2024 60  7   120 130");
    EXPECT_EQ(decodeOvertime(encode(unusualLine())), unusualLine());
    EXPECT_EQ(encode({2026y / 12, {}}), "12-2026 50  50  100 100");
}

TEST(OvertimeRecord, AColumnThatMeansTheSameKeepsItsBytes) {
    for (const std::string& line : {std::string("03-2024 060 050 100 100 0 0 0 02"),
                                    std::string("03-2024  60 50  100 100 1 1 1 2"),
                                    std::string("03-2024 60  50  100 100 0 0 0 2  alheio \x81")}) {
        ASSERT_TRUE(decodeOvertime(line)) << line;
        EXPECT_EQ(encode(*decodeOvertime(line), line).substr(0, line.size()), line);
    }
}

TEST(OvertimeRecord, WhatIsNoNumberOfItsRangeIsNoLine) {
    for (const char* line :
         {"", "  ", "03-2024", "13-2024 50  50  100 100 0 0 0 2", "03/2024 50  50  100 100 0 0 0 2",
          "03-2024 5x  50  100 100 0 0 0 2", "03-2024 -5  50  100 100 0 0 0 2",
          "03-2024 50      100 100 0 0 0 2", "03-2024 50  50  100"})
        EXPECT_FALSE(decodeOvertime(line)) << line;
}

TEST(OvertimeRecord, AMonthIsPutAmongTheOthersWhichStay) {
    TestWorkplace desk;
    const auto save = [&](WorkMonth month) {
        OvertimeLine line = unusualLine();
        line.month = month;
        saveOvertime(desk.store(), {kCompany, kAna}, line);
    };
    save(2024y / 3);
    EXPECT_EQ(desk.file("01MedHorExtr001"), "03-2024 60  7   120 130\r\n");

    const std::vector<std::string> others = {"de outra vers\xE3o",
                                             "02-2024 50  50  100 100 0 0 0 2",
                                             "03-2024 ??",
                                             "03-2024 55  50  100 100 0 0 0 2  x",
                                             "03-2024 99  50  100 100 0 0 0 2",
                                             ""};
    desk.file("01MedHorExtr001") = joinedLines(others);
    save(2024y / 3);
    EXPECT_THAT(splitLines(desk.file("01MedHorExtr001")),
                ElementsAre(others[0], others[1], others[2], "03-2024 60  7   120 130 0 0 0 2  x",
                            others[4], others[5]));
    save(2024y / 4);
    EXPECT_THAT(splitLines(desk.file("01MedHorExtr001")).back(), "04-2024 60  7   120 130");
}

TEST(OvertimeRecord, TheMonthsRulesHoldWhereTheEmployeeHasNone) {
    TestWorkplace desk;
    MonthSettings march;
    march.month = 2024y / 3;
    march.overtime.minimumPercent = 75;
    march.overtime.mode = OvertimeMode::SingleLevel;
    march.overtime.threshold = 90min;
    const auto rules = [&] { return overtimeOf(desk.store(), {kCompany, kAna}, march); };
    EXPECT_EQ(rules(), march.overtime);
    OvertimeLine line = unusualLine();
    line.month = 2024y / 4;
    saveOvertime(desk.store(), {kCompany, kAna}, line);
    EXPECT_EQ(rules(), march.overtime);
    saveOvertime(desk.store(), {kCompany, kAna}, unusualLine());
    EXPECT_EQ(OvertimePercents(rules()), unusualLine().percents);
    EXPECT_EQ(rules().mode, OvertimeMode::SingleLevel) << "all else is the month's";
    march.overtime.mode = OvertimeMode::BothLevels;
    EXPECT_EQ(rules().mode, OvertimeMode::BothLevels);
    EXPECT_EQ(rules().threshold, 90min);
    EXPECT_FALSE(loadOvertime(desk.store(), {kCompany, *EmployeeCode::parse("002")}, 2024y / 3));
}

TEST(Threshold, IsTypedInHoursDecimalsOrMinutes) {
    struct Case {
        const char* typed;
        const char* text;  ///< empty for what is refused
    };
    for (const Case& c : {Case{"2", "2"},         Case{" 02 ", "2"},     Case{"0", "0"},
                          Case{"24", "24"},       Case{"1,5", "01:30"},  Case{"1.50", "01:30"},
                          Case{"01:30", "01:30"}, Case{"1:05", "01:05"}, Case{"0,1", "00:06"},
                          Case{"1,33", "1,33"},   Case{"2,00", "2"},     Case{"23:59", "23:59"},
                          Case{"24,00", "24"},    Case{"24:01", ""},     Case{"24,01", ""},
                          Case{"25", ""},         Case{"", ""},          Case{"-1", ""},
                          Case{"1:5", ""},        Case{"1:60", ""},      Case{"1,", ""},
                          Case{"1,555", ""},      Case{"1,-5", ""},      Case{"1, 5", ""},
                          Case{",5", ""},         Case{"1h30", ""},      Case{"1:3:0", ""}}) {
        const auto threshold = parseThreshold(c.typed);
        EXPECT_EQ(threshold ? thresholdText(*threshold) : "", c.text) << c.typed;
        EXPECT_EQ(parseThreshold(c.text), threshold) << c.typed;
    }
}

}  // namespace
}  // namespace winvrx
