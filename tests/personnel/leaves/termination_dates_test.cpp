#include "personnel/leaves/termination_dates.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

Date day(const char* text) {
    return parseDate(text).value();
}

TEST(FullYearsOfService, CountTheDayItself) {
    struct Case {
        const char* admission;
        const char* date;
        int years;
    };
    for (const Case& c : {Case{"15/04/2025", "15/04/2026", 1}, Case{"16/04/2024", "15/04/2026", 2},
                          Case{"16/04/2024", "14/04/2026", 1}, Case{"01/01/2024", "01/01/2024", 0},
                          Case{"01/01/2024", "31/12/2024", 1}, Case{"29/02/2024", "27/02/2025", 0},
                          Case{"29/02/2024", "28/02/2025", 1}, Case{"29/02/2024", "27/02/2028", 3},
                          Case{"29/02/2024", "28/02/2028", 4}, Case{"10/05/2024", "01/03/2024", 0}})
        EXPECT_EQ(fullYearsOfService(day(c.admission), day(c.date)), c.years)
            << c.admission << " " << c.date;
}

TEST(TerminationDates, FollowFromTypeNoticeAndYears) {
    using enum TerminationType;
    using enum NoticeType;
    struct Case {
        TerminationType type;
        NoticeType notice;
        const char* admission;
        const char* given;
        int days;
        const char* ends;
        const char* lastWorked;
        const char* due;
    };
    // The first eight are of 0, 1, 2, 3, 5, 20 and 21 years; a year of 366 days lies in between.
    for (const Case& c : {
             Case{WithoutCause, Paid, "10/12/2025", "15/04/2026", 30, "15/05/2026", "15/04/2026",
                  "25/04/2026"},
             Case{WithoutCause, Paid, "15/04/2025", "15/04/2026", 33, "18/05/2026", "15/04/2026",
                  "25/04/2026"},
             Case{WithoutCause, Paid, "16/04/2024", "15/04/2026", 36, "21/05/2026", "15/04/2026",
                  "25/04/2026"},
             Case{WithoutCause, Paid, "10/01/2023", "30/06/2026", 39, "08/08/2026", "30/06/2026",
                  "10/07/2026"},
             Case{WithoutCause, Worked, "10/01/2019", "15/01/2024", 45, "29/02/2024", "14/02/2024",
                  "24/02/2024"},
             Case{WithoutCause, Paid, "16/04/2006", "15/04/2026", 90, "14/07/2026", "15/04/2026",
                  "25/04/2026"},
             Case{WithoutCause, Worked, "01/04/2005", "15/04/2026", 90, "14/07/2026", "15/05/2026",
                  "25/05/2026"},
             Case{EmployersFault, Paid, "10/01/2023", "30/06/2026", 39, "08/08/2026", "30/06/2026",
                  "10/07/2026"},
             Case{MutualFault, Paid, "15/04/2025", "15/04/2026", 17, "02/05/2026", "15/04/2026",
                  "25/04/2026"},
             Case{MutualFault, Worked, "16/04/2006", "15/04/2026", 45, "30/05/2026", "15/05/2026",
                  "25/05/2026"},
             Case{Agreement, Paid, "15/04/2025", "15/04/2026", 17, "02/05/2026", "15/04/2026",
                  "25/04/2026"},
             Case{Agreement, Worked, "16/04/2006", "15/04/2026", 60, "14/06/2026", "15/05/2026",
                  "25/05/2026"},
             Case{Resignation, Worked, "16/04/2006", "15/04/2026", 30, "15/05/2026", "15/05/2026",
                  "25/05/2026"},
             Case{Resignation, Paid, "16/04/2006", "15/04/2026", 30, "15/04/2026", "15/04/2026",
                  "25/04/2026"},
             Case{JustCause, Worked, "16/04/2006", "15/04/2026", 0, "15/04/2026", "15/04/2026",
                  "25/04/2026"},
         }) {
        const TerminationDates dates =
            terminationDates(c.type, c.notice, day(c.admission), day(c.given));
        SCOPED_TRACE(std::string(c.admission) + " " + c.given + " " +
                     std::to_string(static_cast<int>(c.type)));
        EXPECT_EQ(dates.noticeDays.value, c.days);
        EXPECT_EQ(dateText(dates.noticeEnds.value), c.ends);
        EXPECT_EQ(dateText(dates.lastDayWorked.value), c.lastWorked);
        EXPECT_EQ(dateText(dates.paymentDue.value), c.due);
        EXPECT_EQ(dates.noticeBegins.value.has_value(),
                  c.days > 0 && !(c.type == Resignation && c.notice == Paid));
    }
}

TEST(TerminationDates, SayTheirRule) {
    EXPECT_EQ(noticeDays(TerminationType::WithoutCause, day("10/01/2022"), day("30/06/2026")).rule,
              "30 + 3 × 4 anos = 42 dias, Lei 12.506/2011");
    EXPECT_EQ(noticeDays(TerminationType::WithoutCause, day("10/01/2000"), day("30/06/2026")).rule,
              "30 + 3 × 26 anos = 108 dias, no máximo 90, Lei 12.506/2011");
    for (const auto& [type, offers] : {std::pair(TerminationType::WithoutCause, true),
                                       std::pair(TerminationType::Resignation, false)})
        EXPECT_EQ(terminationDates(type, NoticeType::Worked, day("10/01/2022"), day("30/06/2026"))
                          .lastDayWorked.rule.find("art. 488") != std::string::npos,
                  offers);
}

}  // namespace
}  // namespace winvrx
