#include "foundation/register/leave_calendar.h"

#include "tests/support/leave_files.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace testing;
using namespace std::chrono_literals;

constexpr const char* kTermination = "008 RESCISÃO_CONTRATO_TRABALHO";

Leave termination(const char* first, const char* last, const char* lastWorked) {
    Leave one = leave(kTermination, first, last);
    one.lastWorked = lastWorked;
    return one;
}

Leave hours(const char* day, const char* duration) {
    Leave one = leave("007 ATESTADO_DECALRAÇÃO", day, day);
    one.duration = duration;
    return one;
}

std::string wordOf(Standing standing) {
    switch (standing) {
        case Standing::Employed:
            return "there";
        case Standing::OnLeave:
            return "away";
        case Standing::BeforeAdmission:
            return "before";
        case Standing::AfterEnd:
            return "after";
    }
    return {};
}

TEST(LeaveCalendar, SaysOfEachDayWhereTheEmployeeIs) {
    const std::string twoYears = leaveBytes({vacation("20/12/2023", "02/01/2024")});
    const std::string touching =
        leaveBytes({vacation("01/03/2024", "10/03/2024"),
                    leave("003 AUXILIO_DOENÇA", "11/03/2024", "11/03/2024")});
    const std::string notice = leaveBytes({termination("15/02/2024", "15/03/2024", "08/03/2024")});
    const std::string paid =
        leaveBytes({termination("08/03/2024", "07/04/2024", "08/03/2024")}, "07/04/2024");
    const std::string rehired =
        leaveBytes({termination("01/02/2020", "02/03/2020", "02/03/2020")}, "20/03/2024");
    struct Case {
        const char* what;
        std::string file;
        const char* date;
        const char* standing;
    };
    for (const Case& c : {
             Case{"admitted later", "", "28/02/2019", "before"},
             {"day of admission", "", "01/03/2019", "there"},
             {"leave before the admission", leaveBytes({vacation("01/01/2019", "31/12/2019")}),
              "28/02/2019", "before"},
             {"eve of the leave", twoYears, "19/12/2023", "there"},
             {"first day", twoYears, "20/12/2023", "away"},
             {"year's end", twoYears, "31/12/2023", "away"},
             {"last day, next year", twoYears, "02/01/2024", "away"},
             {"back", twoYears, "03/01/2024", "there"},
             {"end of the first of two", touching, "10/03/2024", "away"},
             {"the second of two", touching, "11/03/2024", "away"},
             {"after both", touching, "12/03/2024", "there"},
             {"no days and no hours", leaveBytes({hours("05/03/2024", "000 Dias e 0 Horas")}),
              "05/03/2024", "away"},
             {"hours of a day", leaveBytes({hours("05/03/2024", "000 Dias e 4 Horas")}),
              "05/03/2024", "there"},
             {"days and hours", leaveBytes({hours("05/03/2024", "001 Dias e 4 Horas")}),
              "05/03/2024", "away"},
             {"duration of another program", leaveBytes({hours("05/03/2024", "quatro horas")}),
              "05/03/2024", "away"},
             {"notice is worked", notice, "08/03/2024", "there"},
             {"after the last day worked", notice, "09/03/2024", "away"},
             {"active after a termination", notice, "16/03/2024", "there"},
             {"paid notice: last day worked", paid, "08/03/2024", "there"},
             {"paid notice: projected days", paid, "09/03/2024", "after"},
             {"termination of its days only",
              leaveBytes({leave(kTermination, "31/03/2024", "31/03/2024")}), "31/03/2024", "away"},
             {"inactive, day of it", leaveBytes({}, "20/03/2024"), "20/03/2024", "there"},
             {"inactive, day after", leaveBytes({}, "20/03/2024"), "21/03/2024", "after"},
             {"vacation after the end",
              leaveBytes({vacation("01/03/2024", "31/03/2024")}, "20/03/2024"), "21/03/2024",
              "after"},
             {"last day worked past the end",
              leaveBytes({termination("20/03/2024", "20/03/2024", "30/04/2024")}, "20/03/2024"),
              "21/03/2024", "after"},
             {"short line, lower case",
              "008 rescisao_contrato_trabalho01/03/2024  31/03/2024\r\n**** 02/03/2024",
              "03/03/2024", "after"},
             {"stray lines", "nota\r\n006\r\n12\r\n****\r\n\r\n", "05/03/2024", "there"},
         }) {
        const LeaveCalendar calendar(c.file, parseDate("01/03/2019"));
        EXPECT_EQ(wordOf(calendar.standingOn(*parseDate(c.date))), c.standing) << c.what;
    }
    EXPECT_EQ(LeaveCalendar(rehired, {}).contractEnd(), parseDate("20/03/2024"));
}

TEST(LeaveCalendar, ReadsTheFileOnceAndKeepsWhatItCannotDate) {
    MemoryFiles files;
    files.content["/data/01configAf001"] =
        leaveBytes({vacation("20/02/2024", "05/03/2024"), vacation("31/02/2024", "02/03/2024"),
                    leave("003 AUXILIO_DOENÇA", "10/03/2024", "09/03/2024")},
                   "10/04/2024");
    const LeaveCalendar calendar = loadLeaveCalendar(
        {files, DataFolder('C', "/data")}, {*CompanyCode::parse("01"), *EmployeeCode::parse("001")},
        parseDate("05/01/2024"));
    EXPECT_EQ(files.reads, 1);
    EXPECT_EQ(calendar.unread().size(), 2U);
    EXPECT_EQ(calendar.inactiveSince(), parseDate("10/04/2024"));
    EXPECT_EQ(calendar.admission(), parseDate("05/01/2024"));
    EXPECT_EQ(wordOf(calendar.leaveOn(*parseDate("05/03/2024"))->leave), "FÉRIAS");
    EXPECT_EQ(calendar.leaveOn(*parseDate("06/03/2024")), nullptr);
    EXPECT_TRUE(calendar.touches(2024y / 2));
    EXPECT_FALSE(calendar.touches(2024y / 4));
}

}  // namespace
}  // namespace winvrx
