#include "timecard/punches/leave_marking.h"

#include "tests/support/leave_files.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "timecard/punches/punch_record.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using namespace testing;
using namespace std::chrono_literals;
using ::testing::ElementsAre;

const EmployeeKey kAna{*CompanyCode::parse("01"), *EmployeeCode::parse("001")};

UnmarkedDay day(const char* date, bool hasTimes) {
    return {*parseDate(date), hasTimes};
}

struct LeaveMarking : ::testing::Test, TestWorkplace {
    TestLocks locks;

    /// A card with morning times from Monday to Friday and a stray line.
    void punch(WorkMonth month) {
        auto lines = blankMonth(month);
        Date date = firstDay(month);
        for (PunchLine& line : lines) {
            const unsigned weekday = weekdayOf(date).c_encoding();
            if (weekday == 0)
                line.situation = kSituationWeeklyRest;
            else if (weekday < 6)
                line.morningEntry = "08:00";
            line.shortField = "obs";
            date = plusDays(date, 1);
        }
        file(punchFileName(kAna, month)) = punchRecordBytes(lines) + "perdida\r\n";
    }
    std::vector<UnmarkedDay> unmarked(const LeaveCalendar& leaves, const char* first,
                                      const char* last) {
        return unmarkedDays(store(), locks, kAna, leaves, {*parseDate(first), *parseDate(last)});
    }
    std::string lineOf(const char* date) {
        const Date day = *parseDate(date);
        const auto lines = splitLines(file(punchFileName(kAna, monthOf(day))));
        return lines.at(static_cast<std::size_t>(dayNumber(day)));
    }
};

TEST_F(LeaveMarking, ALeaveOverAYearsEndIsMarkedInEveryMonthThatHasACard) {
    punch(2023y / 12);
    punch(2024y / 1);
    file("01001-13-2023.bdx") = file("01002-12-2023.bdx") = "  \r\n";
    const LeaveCalendar leaves(leaveBytes({vacation("29/12/2023", "03/02/2024")}), {});
    const auto days = unmarked(leaves, "30/12/2023", "02/01/2024");
    EXPECT_THAT(days, ElementsAre(day("30/12/2023", false), day("31/12/2023", false),
                                  day("01/01/2024", true), day("02/01/2024", true)));
    EXPECT_EQ(markDays(store(), locks, kAna, leaves, leaves.leaves()[0].period), 3 + 31);
    EXPECT_EQ(lineOf("28/12/2023"),
              "28/qui/dez08:00" + std::string(25, ' ') + "obs" + std::string(17, ' '));
    for (const char* date : {"29/12/2023", "31/12/2023", "01/01/2024", "31/01/2024"})
        EXPECT_EQ(lineOf(date).substr(10), std::string(30, ' ') + "obs  AFASTAMENTO    ") << date;
    EXPECT_TRUE(file("01001-01-2024.bdx").ends_with("perdida\r\n"));
    EXPECT_FALSE(files.content.contains("/data/01001-02-2024.bdx"));
    EXPECT_TRUE(unmarked(leaves, "01/12/2023", "31/12/2024").empty());
}

TEST_F(LeaveMarking, DaysAfterTheEndBecomeBlankAndAClosedMonthStays) {
    punch(2024y / 3);
    const LeaveCalendar ended(leaveBytes({}, "28/03/2024"), parseDate("01/03/2024"));
    EXPECT_THAT(unmarked(ended, "01/01/2024", "31/12/2030"),
                ElementsAre(day("29/03/2024", true), day("31/03/2024", false)));
    locks.closed = {"001"};
    const auto before = files.content;
    EXPECT_TRUE(unmarked(ended, "29/03/2024", "29/03/2024").at(0).closed);
    EXPECT_EQ(
        markDays(store(), locks, kAna, ended, {*parseDate("01/03/2024"), *parseDate("31/12/2024")}),
        0);
    EXPECT_EQ(files.content, before);
    locks.closed.clear();
    EXPECT_EQ(
        markDays(store(), locks, kAna, ended, {*parseDate("01/03/2024"), *parseDate("31/12/2024")}),
        2);
    EXPECT_EQ(lineOf("31/03/2024").substr(10), std::string(30, ' ') + "obs" + std::string(17, ' '));
}

}  // namespace
}  // namespace winvrx
