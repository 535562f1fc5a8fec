#include "timecard/hours/employee_hours.h"

#include "tests/support/memory_files.h"
#include "timecard/month/overtime_record.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");

/// March 2024 closed from 21 February to 20 March, for a day of 08:00 to 16:00.
struct EmployeeHoursTest : ::testing::Test {
    testing::MemoryFiles files;
    DataFolder folder{'C', "/data"};
    Employee ana;
    MonthSettings settings;

    void SetUp() override {
        ana.code = "001";
        settings.month = 2024y / 3;
        settings.closingDay = 21;
        settings.fixedMonth = false;
        file("01PadrHor001.pdx") = "08:0016:00";
    }

    std::string& file(const std::string& name) { return files.content["/data/" + name]; }

    [[nodiscard]] std::optional<EmployeeHours> load(HoursPeriod which) {
        return loadEmployeeHours({files, folder}, kCompany, ana, settings, which);
    }
};

TEST_F(EmployeeHoursTest, TheMonthIsItsOwnDays) {
    file("01001-02-2024.bdx") = "  \r\n21/qua/fev08:0020:00\r\n";
    file("01001-03-2024.bdx") = "  \r\n05/ter/mar08:0017:00\r\n20/qua/mar08:0018:00\r\n";
    const auto hours = load(HoursPeriod::CalendarMonth);
    ASSERT_TRUE(hours);
    EXPECT_EQ(hours->lines.size(), 31U);
    EXPECT_EQ(hours->totals()[HourCategory::ExtraMinimum], 3h);
    EXPECT_EQ(hours->totals(HalfMonth::First)[HourCategory::ExtraMinimum], 1h);
    EXPECT_EQ(hours->totals(HalfMonth::Second)[HourCategory::ExtraMinimum], 2h);
}

TEST_F(EmployeeHoursTest, TheClosingPeriodTakesItsDaysFromTwoMonths) {
    file("01001-02-2024.bdx") = "  \r\n20/ter/fev08:0020:00\r\n21/qua/fev08:0019:00\r\n";
    file("01001-03-2024.bdx") = "  \r\n05/ter/mar08:0017:00\r\n21/qui/mar08:0022:00\r\n";
    const auto hours = load(HoursPeriod::ClosingPeriod);
    ASSERT_TRUE(hours);
    EXPECT_EQ(hours->period, (DayPeriod{*parseDate("21/02/2024"), *parseDate("20/03/2024")}));
    EXPECT_EQ(hours->lines.size(), 29U);
    EXPECT_EQ(hours->totals()[HourCategory::ExtraMinimum], 4h);
    EXPECT_EQ(hours->totals(HalfMonth::First)[HourCategory::ExtraMinimum], 1h);
}

TEST_F(EmployeeHoursTest, TheClosingRecordComesBeforeTheMonths) {
    file("01001-02-2024.bdx") = "  \r\n21/qua/fev08:0019:00\r\n22/qui/fev08:0020:00\r\n";
    file("01001-03-2024.prd") =
        "  \r\n21/qua/fev08:0017:00\r\n05/ter/mar08:0018:00\r\n05/ter/mar08:0023:00\r\n"
        "23/sáb/mar08:0023:00\r\nlixo\r\n";
    const auto hours = load(HoursPeriod::ClosingPeriod);
    ASSERT_TRUE(hours);
    EXPECT_EQ(hours->totals()[HourCategory::ExtraMinimum], 1h + 2h + 4h);
    EXPECT_FALSE(load(HoursPeriod::CalendarMonth));
    settings.fixedMonth = true;
    EXPECT_FALSE(load(HoursPeriod::ClosingPeriod));
}

TEST_F(EmployeeHoursTest, EachDayGoesByTheHolidaysOfItsOwnMonth) {
    MonthSettings february;
    february.month = 2024y / 2;
    february.setHoliday(*parseDate("28/02/2024"), true);
    saveMonthSettings({files, folder}, february);
    settings.setHoliday(*parseDate("28/03/2024"), true);
    file("01001-02-2024.bdx") = "  \r\n28/qua/fev08:0012:00\r\n";
    file("01001-03-2024.bdx") = "  \r\n";
    const auto hours = load(HoursPeriod::ClosingPeriod);
    ASSERT_TRUE(hours);
    EXPECT_EQ(hours->totals()[HourCategory::ExtraMaximum], 4h);
    constexpr int kSundaysAndHoliday = 5;
    EXPECT_EQ(hours->totals()[HourCategory::WeeklyRest], kSundaysAndHoliday * 8h);
}

TEST_F(EmployeeHoursTest, TheEmployeesOwnPercentagesComeBeforeTheMonths) {
    file("01001-03-2024.bdx") = "  \r\n05/ter/mar08:0017:00\r\n";
    OvertimePercents own;
    own.maximumPercent = 110;
    saveOvertime({files, folder}, {kCompany, kAna}, {settings.month, own});
    settings.overtime.mode = OvertimeMode::SingleLevel;
    const auto hours = load(HoursPeriod::CalendarMonth);
    ASSERT_TRUE(hours);
    EXPECT_EQ(hours->terms.overtime.maximumPercent, 110);
    EXPECT_EQ(hours->totals()[HourCategory::ExtraMaximum], 1h);
}

TEST_F(EmployeeHoursTest, WithoutPunchesThereAreNoHours) {
    EXPECT_FALSE(load(HoursPeriod::CalendarMonth));
    EXPECT_FALSE(load(HoursPeriod::ClosingPeriod));
}

}  // namespace
}  // namespace winvrx
