#include "timecard/punches/punch_application.h"

#include "tests/support/leave_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::leaveBytes;
using testing::vacation;
using namespace std::chrono_literals;

StandardSchedule usualSchedule() {
    StandardSchedule schedule;
    schedule.weekday.morning = {parseTime("08:00"), parseTime("12:00")};
    schedule.weekday.afternoon = {parseTime("13:00"), parseTime("17:00")};
    schedule.saturday.morning = {parseTime("07:00"), parseTime("11:00")};
    return schedule;
}

/// A day in one line: times and situation.
std::string dayText(const PunchLine& line) {
    return line.morningEntry + "-" + line.morningExit + " " + line.afternoonEntry + "-" +
           line.afternoonExit + " " + line.situation;
}

TEST(PunchApplication, EachKindOfDayGetsItsTimes) {
    MonthSettings settings;
    settings.month = 2024y / 3;
    for (const char* holiday : {"29/03/2024", "30/03/2024", "31/03/2024"})
        settings.setHoliday(*parseDate(holiday), true);
    const auto lines = filledMonth(
        {.schedule = usualSchedule(), .leaves = {"", parseDate("02/03/2024")}}, settings);
    ASSERT_EQ(lines.size(), 31U);
    struct Case {
        std::size_t day;
        const char* text;
    };
    for (const Case& c : {Case{1, "- - "},            // before admission
                          Case{2, "07:00-11:00 - "},  // Saturday, day of admission
                          Case{3, "- - DESCANSO SEMANAL"}, Case{4, "08:00-12:00 13:00-17:00 "},
                          Case{29, "- - FERIADO"},   // Friday
                          Case{30, "- - FERIADO"},   // Saturday
                          Case{31, "- - FERIADO"}})  // Sunday
        EXPECT_EQ(dayText(lines[c.day - 1]), c.text) << c.day;
    EXPECT_EQ(lines[3].label, "04/seg/mar");
}

TEST(PunchApplication, AdmissionOnTheLastDayLeavesOneDay) {
    MonthSettings settings;
    settings.month = 2024y / 2;
    settings.setHoliday(*parseDate("13/02/2024"), true);
    const auto lines = filledMonth(
        {.schedule = usualSchedule(), .leaves = {"", parseDate("29/02/2024")}}, settings);
    ASSERT_EQ(lines.size(), 29U);
    for (std::size_t day = 1; day < 29; ++day)
        EXPECT_EQ(dayText(lines[day - 1]), "- - ") << day;
    EXPECT_EQ(dayText(lines[28]), "08:00-12:00 13:00-17:00 ");
}

TEST(PunchApplication, TheFirstReasonInTheListDecides) {
    // February 2026 begins on a Sunday; 16 and 17 are Carnival.
    MonthSettings settings;
    settings.month = 2026y / 2;
    for (const char* holiday : {"07/02/2026", "15/02/2026", "17/02/2026"})
        settings.setHoliday(*parseDate(holiday), true);
    const LeaveCalendar leaves(
        leaveBytes({vacation("20/01/2026", "04/02/2026"), vacation("14/02/2026", "15/02/2026")},
                   "26/02/2026"),
        parseDate("03/02/2026"));
    const auto lines = filledMonth(
        {.schedule = usualSchedule(), .leaves = leaves, .restDay = std::chrono::Tuesday}, settings);
    struct Case {
        std::size_t day;
        const char* text;
    };
    for (const Case& c :
         {Case{1, "- - "},  // Sunday in a leave, before admission
          Case{3, "- - AFASTAMENTO"}, Case{4, "- - AFASTAMENTO"},
          Case{5, "08:00-12:00 13:00-17:00 "}, Case{7, "- - FERIADO"},   // Saturday
          Case{8, "- - DESCANSO SEMANAL"}, Case{14, "- - AFASTAMENTO"},  // Saturday
          Case{15, "- - AFASTAMENTO"},                                   // holiday on a Sunday
          Case{17, "- - FERIADO"}, Case{24, "- - DESCANSO SEMANAL"}, Case{21, "07:00-11:00 - "},
          Case{26, "08:00-12:00 13:00-17:00 "}, Case{27, "- - "}})  // the contract is over
        EXPECT_EQ(dayText(lines[c.day - 1]), c.text) << c.day;
}

TEST(PunchApplication, WithoutScheduleDaysHaveNoTimesButTheSituationGiven) {
    MonthSettings settings;
    settings.month = 2026y / 2;
    for (const char* situation : {"", "Falta"}) {
        const auto lines = filledMonth({.schedule = {}, .situation = situation}, settings);
        ASSERT_EQ(lines.size(), 28U);
        EXPECT_EQ(dayText(lines[0]), "- - DESCANSO SEMANAL");
        EXPECT_EQ(dayText(lines[1]), std::string("- - ") + situation);
        EXPECT_EQ(dayText(lines[6]), "- - ");  // Saturday
    }
}

}  // namespace
}  // namespace winvrx
