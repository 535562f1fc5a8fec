#include "timecard/punches/punch_record.h"

#include "foundation/values/faults.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;
using namespace std::chrono_literals;

const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kEmployee = *EmployeeCode::parse("001");
const std::string kName = "01001-03-2024.bdx";

TEST(PunchLine, ColumnsComeBackAsTheyStand) {
    for (const char* bytes :
         {"05/ter/mar08:0012:0013:0017:00          1    Falta          ",
          "09/s\xE1"
          "b/mar                                   FERIADO        ",
          "10/dom/mar                                   DESCANSO SEMANA",
          "11/seg/mar8:00 ab:cd          22:0005:00     Falta Injustifi  12/03/2024  "})
        EXPECT_EQ(encode(decodePunchLine(bytes)), bytes);
    EXPECT_EQ(
        decodePunchLine("10/dom/mar                                   DESCANSO SEMANA").situation,
        kSituationWeeklyRest);
    const PunchLine cut = decodePunchLine("05/ter/mar08:0012:");
    EXPECT_EQ(cut.morningEntry, "08:00");
    EXPECT_EQ(cut.morningExit, "12:");
    EXPECT_FALSE(cut.morning().complete());
    EXPECT_EQ(encode(cut).size(), kPunchWidth);
}

TEST(PunchLine, TextThatCannotBeStoredIsRefused) {
    PunchLine line;
    line.situation = "Falta\n";
    EXPECT_THROW((void)encode(line), TextFault);
}

/// Records the lines over what the employee's record holds.
void edit(TestWorkplace& desk, WorkMonth month, const std::vector<PunchLine>& lines) {
    std::string& record = desk.file(punchFileName({kCompany, kEmployee}, month));
    record = editedPunchRecord(record, month, lines);
}

TEST(PunchLine, DayIsReadFromTheLabelAlone) {
    struct Case {
        const char* label;
        int day;
    };
    for (const Case& c : {Case{"05/ter/mar", 5}, Case{"31/dom/mar", 31}, Case{"32/dom/mar", 0},
                          Case{"00/dom/mar", 0}, Case{"123456", 0}, Case{"5/ter/mar", 0},
                          Case{"", 0}, Case{"ab/ter/mar", 0}}) {
        PunchLine line;
        line.label = c.label;
        EXPECT_EQ(line.day(), c.day) << c.label;
    }
}

TEST(PunchRecord, WritesTheOpeningLineAndEveryDayInOrder) {
    TestWorkplace desk;
    auto lines = blankMonth(2024y / 2);
    ASSERT_EQ(lines.size(), 29U);
    lines[28].morningEntry = "08:00";
    edit(desk, 2024y / 2, lines);
    const auto written = splitLines(desk.file("01001-02-2024.bdx"));
    ASSERT_EQ(written.size(), 30U);
    EXPECT_EQ(written[0], "  ");
    EXPECT_EQ(written[1], "01/qui/fev" + std::string(50, ' '));
    EXPECT_EQ(written[29], "29/qui/fev08:00" + std::string(45, ' '));
    EXPECT_EQ(loadPunches(desk.store(), {kCompany, kEmployee}, 2024y / 2), lines);
}

TEST(PunchRecord, DamagedRecordGivesEveryDayAndKeepsWhatItDoesNotKnow) {
    TestWorkplace desk;
    EXPECT_FALSE(loadPunches(desk.store(), {kCompany, kEmployee}, 2024y / 3));
    desk.file(kName) =
        "  \r\n"
        "02/sab/mar09:00\r\n"
        "anota\xE7\xE3o de algu\xE9m\r\n"
        "01/sex/mar08:0012:00\r\n"
        "01/sex/mar07:00\r\n"
        "05/ter/mar08:0";
    const auto lines = loadPunches(desk.store(), {kCompany, kEmployee}, 2024y / 3);
    ASSERT_TRUE(lines);
    ASSERT_EQ(lines->size(), 31U);
    EXPECT_EQ((*lines)[0].morningEntry, "08:00");
    EXPECT_EQ((*lines)[1].morningEntry, "09:00");
    EXPECT_EQ((*lines)[4].morningEntry, "08:0");
    EXPECT_EQ((*lines)[30].label, "31/dom/mar");

    EXPECT_THAT(findPunchRecord(desk.store(), {kCompany, kEmployee}, 2024y / 3)->unread,
                ::testing::ElementsAre("anotação de alguém", "01/sex/mar07:00"));

    edit(desk, 2024y / 3, *lines);
    const auto written = splitLines(desk.file(kName));
    ASSERT_EQ(written.size(), 34U);
    EXPECT_EQ(written[32], "anota\xE7\xE3o de algu\xE9m");
    EXPECT_EQ(written[33], "01/sex/mar07:00");
    EXPECT_EQ(loadPunches(desk.store(), {kCompany, kEmployee}, 2024y / 3), lines);
}

TEST(PunchRecord, ADayWithStrangeBytesDoesNotKeepTheOthersFromBeingSaved) {
    TestWorkplace desk;
    const std::string strange =
        "02/sab/mar\x01\x81:00      \t" + std::string(37, ' ') + "further\x8D";
    desk.file(kName) = "  \r\n" + strange + "\r\n";
    auto lines = *loadPunches(desk.store(), {kCompany, kEmployee}, 2024y / 3);
    lines[4].morningEntry = "08:00";
    edit(desk, 2024y / 3, lines);
    const auto written = splitLines(desk.file(kName));
    EXPECT_EQ(written[2], strange);
    EXPECT_THAT(written[5], ::testing::StartsWith("05/ter/mar08:00"));
}

TEST(PunchRecord, ADayPastTheMonthsEndIsNoDay) {
    TestWorkplace desk;
    desk.file("01001-02-2026.bdx") = "  \r\n29/dom/fev08:00\r\n";
    const auto lines = loadPunches(desk.store(), {kCompany, kEmployee}, 2026y / 2);
    EXPECT_EQ(lines, blankMonth(2026y / 2));
}

}  // namespace
}  // namespace winvrx
