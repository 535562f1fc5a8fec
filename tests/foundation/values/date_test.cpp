#include "foundation/values/date.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(Date, OnlyDaysOfTheCalendarAreDates) {
    for (const char* text : {"29/02/2024", "31/12/1999", "01/01/0001", "29/02/2000"}) {
        ASSERT_TRUE(parseDate(text)) << text;
        EXPECT_EQ(dateText(*parseDate(text)), text);
    }
    for (const char* text :
         {"", "29/02/2023", "29/02/1900", "31/04/2024", "00/01/2024", "01/13/2024", "01/01/0000",
          "1/1/2024", "01-01-2024", "01/01/24", "01/01/2024 ", "ab/cd/efgh", "+1/01/2024"})
        EXPECT_FALSE(parseDate(text)) << text;
}

TEST(Date, TimesOfDay) {
    for (const char* text : {"00:00", "08:05", "23:59"})
        EXPECT_EQ(timeText(parseTime(text).value()), text);
    for (const char* text : {"", "24:00", "08:60", "8:00", "08.00", "08:0x", "08:000", "-1:00"})
        EXPECT_FALSE(parseTime(text)) << text;
    EXPECT_LT(parseTime("08:59"), parseTime("09:00"));
}

TEST(Date, WorkMonths) {
    const auto march = parseMonthKey("03-2024");
    ASSERT_TRUE(march);
    EXPECT_EQ(monthKey(*march), "03-2024");
    EXPECT_EQ(monthTitle(*march), "março/2024");
    for (const char* text : {"", "3-2024", "00-2024", "13-2024", "03/2024", "03-0000"})
        EXPECT_FALSE(parseMonthKey(text)) << text;
    EXPECT_EQ(daysIn(*parseMonthKey("02-2024")), 29);
    EXPECT_EQ(daysIn(*parseMonthKey("02-2023")), 28);
    EXPECT_EQ(dateText(lastDay(*march)), "31/03/2024");
}

TEST(Date, DayLabelsNameTheWeekday) {
    struct Case {
        const char* date;
        const char* label;
    };
    for (const Case& c : {Case{"02/03/2024", "02/sáb/mar"},
                          {"03/03/2024", "03/dom/mar"},
                          {"05/03/2024", "05/ter/mar"},
                          {"29/02/2024", "29/qui/fev"}})
        EXPECT_EQ(dayLabel(*parseDate(c.date)), c.label);
    EXPECT_EQ(weekdayName(weekdayOf(*parseDate("02/03/2024"))), "sábado");
}

TEST(Date, DaysRunOverMonthsAndYears) {
    EXPECT_EQ(dateText(plusDays(*parseDate("28/02/2024"), 2)), "01/03/2024");
    EXPECT_EQ(dateText(plusDays(*parseDate("01/01/2024"), -1)), "31/12/2023");
    EXPECT_EQ(monthOf(*parseDate("31/12/2023")), *parseMonthKey("12-2023"));
}

}  // namespace
}  // namespace winvrx
