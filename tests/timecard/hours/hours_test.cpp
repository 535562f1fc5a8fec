#include "timecard/hours/hours.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

TEST(Hours, PairsCountOverMidnightAndOnlyWhenComplete) {
    struct Case {
        const char* entry;
        const char* exit;
        std::chrono::seconds length;
    };
    for (const Case& c : {Case{"08:00", "12:00", 4h}, Case{"22:00", "05:00", 7h},
                          Case{"23:00", "01:00", 2h}, Case{"00:00", "23:59", 23h + 59min},
                          Case{"23:59", "00:00", 1min}, Case{"08:00", "08:00", 0s},
                          Case{"08:00", "", 0s}, Case{"", "12:00", 0s}, Case{"", "", 0s}})
        EXPECT_EQ(lengthOf(TimePair{parseTime(c.entry), parseTime(c.exit)}), c.length)
            << c.entry << " to " << c.exit;
}

TEST(Hours, SkipsATimeThatIsNone) {
    PunchLine line;
    line.morningEntry = "08:00";
    line.morningExit = "12:00";
    line.afternoonEntry = "13:30";
    line.afternoonExit = "x7:30";
    line.extraEntry = "22:00";
    line.extraExit = "1:00";
    EXPECT_EQ(dayHours(line, *parseDate("05/03/2024"), WorkTerms()).worked(), 7h);
}

TEST(Hours, FormatsExactly) {
    struct Case {
        std::chrono::seconds duration;
        const char* clock;
        const char* decimal;
        const char* oneDecimal;
    };
    for (const Case& c :
         {Case{0s, "00:00", "0,00", "0,0"}, Case{18s, "00:00", "0,01", "0,0"},
          Case{17s, "00:00", "0,00", "0,0"}, Case{8h + 45min + 36s, "08:45", "8,76", "8,8"},
          Case{59min + 59s, "00:59", "1,00", "1,0"}, Case{220h, "220:00", "220,00", "220,0"},
          Case{1234h + 30min, "1234:30", "1.234,50", "1.234,5"},
          Case{1'000'000h, "1000000:00", "1.000.000,00", "1.000.000,0"},
          Case{-90min, "-01:30", "-1,50", "-1,5"}, Case{-10s, "00:00", "0,00", "0,0"}}) {
        EXPECT_EQ(formatted(c.duration, TotalsFormat::HoursAndMinutes), c.clock);
        EXPECT_EQ(formatted(c.duration, TotalsFormat::DecimalHours), c.decimal);
        EXPECT_EQ(decimalHours(c.duration, Decimals::One), c.oneDecimal);
    }
}

TEST(Hours, SaturdayCountsInTheWeekOnlyAsNormalTime) {
    StandardSchedule schedule;
    schedule.weekday.morning = {parseTime("08:00"), parseTime("12:00")};
    schedule.weekday.afternoon = {parseTime("14:00"), parseTime("18:00")};
    schedule.saturday.morning = {parseTime("08:00"), parseTime("12:00")};
    EXPECT_EQ(weeklyHours(schedule), 40h);
    schedule.saturdayIsNormal = true;
    EXPECT_EQ(weeklyHours(schedule), 44h);
    EXPECT_EQ(monthlyHours(schedule), 220h);
}

}  // namespace
}  // namespace winvrx
