#include "timecard/month/closing_period.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

MonthSettings closing(const char* month, int day) {
    MonthSettings settings;
    settings.month = *parseMonthKey(month);
    settings.fixedMonth = false;
    settings.closingDay = day;
    return settings;
}

TEST(ClosingPeriod, EndsInTheWorkMonthTheDayBeforeItBegins) {
    struct Case {
        const char* month;
        int day;
        const char* first;
        const char* last;
    };
    for (const Case& c : {Case{"03-2024", 21, "21/02/2024", "20/03/2024"},
                          Case{"01-2024", 16, "16/12/2023", "15/01/2024"},
                          Case{"03-2024", 1, "01/03/2024", "31/03/2024"},
                          Case{"03-2024", 30, "01/03/2024", "29/03/2024"},
                          Case{"03-2023", 30, "01/03/2023", "29/03/2023"},
                          Case{"02-2023", 31, "31/01/2023", "28/02/2023"},
                          Case{"05-2024", 31, "01/05/2024", "30/05/2024"}}) {
        const DayPeriod period = closingPeriod(closing(c.month, c.day));
        EXPECT_EQ(dateText(period.first), c.first) << c.month << " day " << c.day;
        EXPECT_EQ(dateText(period.last), c.last) << c.month << " day " << c.day;
    }
    MonthSettings fixed = closing("02-2024", 21);
    fixed.fixedMonth = true;
    EXPECT_EQ(closingPeriod(fixed),
              (DayPeriod{*parseDate("01/02/2024"), *parseDate("29/02/2024")}));
}

TEST(ClosingPeriod, PeriodsFollowEachOtherWithoutGapWhateverTheDay) {
    for (int day = 1; day <= kHighestClosingDay; ++day)
        for (int month = 0; month < 48; ++month) {
            MonthSettings settings = closing("01-2023", day);
            settings.month += std::chrono::months{month};
            MonthSettings next = settings;
            next.month += std::chrono::months{1};
            EXPECT_EQ(plusDays(closingPeriod(settings).last, 1), closingPeriod(next).first)
                << monthKey(settings.month) << " day " << day;
            EXPECT_EQ(monthOf(closingPeriod(settings).last), settings.month);
        }
}

}  // namespace
}  // namespace winvrx
