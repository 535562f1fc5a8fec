#include "timecard/hours/percent_change.h"

#include "tests/support/test_workplace.h"
#include "timecard/month/overtime_record.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using testing::TestWorkplace;

const std::string kRecord = "01MedHorExtr001";
const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");

struct PercentChangeTest : ::testing::Test {
    TestWorkplace desk;
    OvertimeRules shown;

    [[nodiscard]] bool change(HourCategory category, const char* typed) {
        return changePercent(desk.at, {kCompany, kAna, 2024y / 3, shown, category, typed});
    }
    [[nodiscard]] OvertimeRules recorded(WorkMonth month) {
        MonthSettings settings;
        settings.month = month;
        return overtimeOf(desk.store(), {kCompany, kAna}, settings);
    }
};

TEST_F(PercentChangeTest, EachFigureHasItsPercentage) {
    struct Case {
        HourCategory category;
        int OvertimeRules::*percent;
    };
    for (const Case& c :
         {Case{HourCategory::ExtraMinimum, &OvertimeRules::minimumPercent},
          Case{HourCategory::ExtraMaximum, &OvertimeRules::maximumPercent},
          Case{HourCategory::NightExtraMinimum, &OvertimeRules::nightMinimumPercent},
          Case{HourCategory::NightExtraMaximum, &OvertimeRules::nightMaximumPercent}}) {
        desk.files.content.clear();
        OvertimeRules expected;
        expected.*c.percent = 75;
        desk.person.answers = {Answer::Yes};
        EXPECT_TRUE(change(c.category, " 75 "));
        EXPECT_EQ(recorded(2024y / 3), expected);
        EXPECT_EQ(recorded(2024y / 4), OvertimeRules()) << "another month has its own";
    }
}

TEST_F(PercentChangeTest, RefusesWhatIsNoPercentage) {
    for (const char* typed : {"", "sessenta", "60%", "-1", "1000", "60,5", "6 0"}) {
        EXPECT_FALSE(change(HourCategory::ExtraMinimum, typed)) << typed;
        EXPECT_EQ(desk.person.takeTexts(), std::vector<std::string>{"Dados incorretos!"}) << typed;
        EXPECT_TRUE(desk.files.content.empty());
    }
}

TEST_F(PercentChangeTest, ARefusalOrAnotherWriterLeavesTheRecord) {
    const OvertimeLine before{2024y / 3, shown};
    saveOvertime(desk.store(), {kCompany, kAna}, before);
    const std::string bytes = desk.file(kRecord);
    desk.person.answers = {Answer::No};
    EXPECT_FALSE(change(HourCategory::ExtraMinimum, "60"));
    EXPECT_EQ(desk.file(kRecord), bytes);

    shown.maximumPercent = 110;
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(change(HourCategory::ExtraMinimum, "60"));
    EXPECT_EQ(desk.file(kRecord), bytes);
    EXPECT_EQ(desk.log.entries.size(), 1U);
}

}  // namespace
}  // namespace winvrx
