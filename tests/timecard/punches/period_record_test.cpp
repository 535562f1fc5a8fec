#include "timecard/punches/period_record.h"

#include "tests/support/test_punch_desk.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using testing::TestPunchDesk;
using testing::TestWorkplace;

const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");

MonthSettings closingOn(WorkMonth month, int day) {
    MonthSettings settings;
    settings.month = month;
    settings.fixedMonth = false;
    settings.closingDay = day;
    return settings;
}

/// The files of a batch by name.
std::map<std::string, std::vector<std::string>> linesOf(
    const std::vector<FileSystem::NewContent>& batch) {
    std::map<std::string, std::vector<std::string>> lines;
    for (const auto& one : batch)
        lines[one.file.filename().string()] = splitLines(one.bytes);
    return lines;
}

struct PeriodRecords : ::testing::Test {
    TestWorkplace desk;
    TestPunchDesk asked;

    auto filesOf(const MonthSettings& settings, const char* record) {
        std::vector<FileSystem::NewContent> batch;
        PunchFiles(desk.store(), asked.locks, settings).add(batch, {kCompany, kAna}, record);
        return linesOf(batch);
    }
};

TEST_F(PeriodRecords, HoldTheDaysOfBothMonthsByteForByte) {
    desk.file("01001-02-2024.bdx") = "  \r\n29/qui/fev07:3\r\nnota\r\n20/ter/fev09:00\r\n";
    const auto files = filesOf(closingOn(2024y / 3, 21),
                               "  \r\n01/sex/mar08:00 \r\n20/qua/mar08:02\r\n21/qui/mar08:03\r\n");
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files.at("01001-03-2024.bdx").size(), 4U);
    const auto& period = files.at("01001-03-2024.prd");
    ASSERT_EQ(period.size(), 1U + 9 + 20);
    EXPECT_EQ(period[0], "  ");
    EXPECT_EQ(period[1], "21/qua/fev" + std::string(50, ' '));
    EXPECT_EQ(period[9], "29/qui/fev07:3");
    EXPECT_EQ(period[10], "01/sex/mar08:00 ");
    EXPECT_EQ(period[29], "20/qua/mar08:02");
}

TEST_F(PeriodRecords, AFixedMonthHasNone) {
    MonthSettings settings;
    settings.month = 2024y / 3;
    EXPECT_EQ(filesOf(settings, "  \r\n").size(), 1U);
}

TEST_F(PeriodRecords, OneOfATimeWithAnotherPeriodFollowsItsDays) {
    const std::string stands =
        "  \r\n29/qui/fev07:00\r\n05/ter/mar08:00\r\nnota\r\n05/sex/abr09:00\r\n";
    MonthSettings march;
    march.month = 2024y / 3;
    MonthSettings february;
    february.month = 2024y / 2;
    desk.file("01001-03-2024.prd") = stands;
    EXPECT_THAT(filesOf(march, "  \r\n05/ter/mar10:00\r\n").at("01001-03-2024.prd"),
                ::testing::ElementsAre("  ", "29/qui/fev07:00", "05/ter/mar10:00", "nota",
                                       "05/sex/abr09:00"));
    EXPECT_THAT(filesOf(february, "  \r\n29/qui/fev11:00\r\n").at("01001-03-2024.prd"),
                ::testing::ElementsAre("  ", "29/qui/fev11:00", "05/ter/mar08:00", "nota",
                                       "05/sex/abr09:00"));
}

TEST_F(PeriodRecords, TheNextPeriodFollowsUnlessItIsClosed) {
    const MonthSettings february = closingOn(2024y / 2, 21);
    saveMonthSettings(desk.store(), closingOn(2024y / 3, 21));
    const std::string record = "  \r\n29/qui/fev08:00\r\n";
    EXPECT_FALSE(filesOf(february, record.c_str()).contains("01001-03-2024.prd"));

    desk.file("01001-03-2024.prd") = "";
    desk.file("01001-03-2024.bdx") = "  \r\n01/sex/mar08:00\r\n";
    const auto files = filesOf(february, record.c_str());
    ASSERT_TRUE(files.contains("01001-03-2024.prd"));
    EXPECT_EQ(files.at("01001-03-2024.prd")[9], "29/qui/fev08:00");
    EXPECT_EQ(files.at("01001-03-2024.prd")[10], "01/sex/mar08:00");

    asked.locks.closed = {"001"};
    EXPECT_FALSE(filesOf(february, record.c_str()).contains("01001-03-2024.prd"));
}

TEST_F(PeriodRecords, DeletedPunchesLeaveTheNextPeriodToo) {
    saveMonthSettings(desk.store(), closingOn(2024y / 4, 21));
    desk.file("01001-04-2024.prd") = "  \r\n";
    desk.file("01001-03-2024.prd") = desk.file("01001-03-2024.bdx") = "  \r\n25/seg/mar08:00\r\n";
    desk.file("01001-04-2024.bdx") = "  \r\n05/sex/abr09:00\r\n";
    PunchFiles(desk.store(), asked.locks, closingOn(2024y / 3, 21)).remove({kCompany, kAna});
    EXPECT_FALSE(desk.files.exists("/data/01001-03-2024.prd"));
    EXPECT_FALSE(desk.files.exists("/data/01001-03-2024.bdx"));
    const auto next = splitLines(desk.file("01001-04-2024.prd"));
    ASSERT_EQ(next.size(), 1U + 11 + 20);
    EXPECT_EQ(next[5], "25/seg/mar" + std::string(50, ' ')) << "its label is left";
    EXPECT_EQ(next[16], "05/sex/abr09:00");
}

}  // namespace
}  // namespace winvrx
