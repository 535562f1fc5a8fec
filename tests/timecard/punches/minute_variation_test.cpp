#include "timecard/punches/minute_variation.h"

#include "tests/support/test_workplace.h"
#include "timecard/punches/minutes_option.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace winvrx {
namespace {

using Times = std::array<const char*, 4>;

const CompanyCode kCompany = *CompanyCode::parse("01");

DaySchedule dayOf(const Times& times) {
    return {{parseTime(times[0]), parseTime(times[1])}, {parseTime(times[2]), parseTime(times[3])}};
}

using Punch = std::optional<TimeOfDay>;

std::array<Punch, 4> punchesOf(const DaySchedule& day) {
    return {day.morning.entry, day.morning.exit, day.afternoon.entry, day.afternoon.exit};
}

int minuteOf(const Punch& punch) {
    return static_cast<int>(punch.value().sinceMidnight.count());
}

/// Day by day through 2024, for some employees.
struct Year {
    std::array<int, 4> movedInAll{};
    int days = 0;
    int equalDays = 0;
    int faults = 0;
};

/// What the limits forbid on one day.
int faultsOf(const DaySchedule& standard, const DaySchedule& varied) {
    const auto before = punchesOf(standard);
    const auto after = punchesOf(varied);
    int faults = 0;
    int inAll = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i].has_value() != after[i].has_value()) return 1;
        if (!before[i]) continue;
        const int moved = std::abs(minuteOf(after[i]) - minuteOf(before[i]));
        inAll += moved;
        if (moved > kMostMinutesOfPunch) ++faults;
        for (std::size_t j = 0; j < i; ++j)
            if (before[j] && (*before[j] <=> *before[i]) != (*after[j] <=> *after[i])) ++faults;
    }
    return faults + (inAll > kMostMinutesOfDay ? 1 : 0);
}

Year yearOf(const DaySchedule& standard, int employees) {
    Year year;
    MinuteVariation variation;
    for (int number = 1; number <= employees; ++number) {
        const EmployeeCode employee = *EmployeeCode::fromNumber(number);
        DaySchedule yesterday;
        for (Date date = *parseDate("01/01/2024"); date <= *parseDate("31/12/2024");
             date = plusDays(date, 1)) {
            const DaySchedule varied = variation.vary(standard, {kCompany, employee}, date);
            year.faults += faultsOf(standard, varied);
            if (varied == yesterday) ++year.equalDays;
            yesterday = varied;
            ++year.days;
            for (std::size_t i = 0; i < year.movedInAll.size(); ++i)
                if (const Punch punch = punchesOf(varied)[i])
                    year.movedInAll[i] += minuteOf(punch) - minuteOf(punchesOf(standard)[i]);
        }
    }
    return year;
}

TEST(MinuteVariation, KeepsItsLimitsAndLooksNaturalOverAYear) {
    struct Case {
        Times times;
        bool roomOnBothSides;
    };
    for (const Case& c : {Case{{"08:00", "12:00", "13:00", "17:00"}, true},
                          Case{{"22:00", "02:00", "03:00", "06:00"}, true},  // over midnight
                          Case{{"19:00", "07:00", "", ""}, true}, Case{{"08:00", "", "", ""}, true},
                          Case{{"08:00", "12:00", "12:00", "16:00"}, true},   // two that coincide
                          Case{{"08:00", "12:00", "12:03", "16:00"}, false},  // close together
                          Case{{"00:02", "06:00", "12:00", "23:58"}, false},  // close to midnight
                          Case{{"18:00", "00:00", "00:01", "02:00"}, false}}) {
        const Year year = yearOf(dayOf(c.times), 12);
        EXPECT_EQ(year.faults, 0) << c.times[0] << " " << c.times[2];
        EXPECT_EQ(year.equalDays, 0) << c.times[0] << " " << c.times[2];
        if (!c.roomOnBothSides) continue;
        for (const int moved : year.movedInAll)  // a quarter of a minute a day at most
            EXPECT_LT(std::abs(moved) * 4, year.days) << c.times[0] << " " << c.times[2];
    }
}

TEST(MinuteVariation, IsTheSameOnEveryMachineAndDiffersBetweenEmployees) {
    const DaySchedule standard = dayOf({"08:00", "12:00", "13:00", "17:00"});
    const auto text = [&](const char* company, const char* employee, const char* date) {
        MinuteVariation variation;
        const DaySchedule day =
            variation.vary(standard, {*CompanyCode::parse(company), *EmployeeCode::parse(employee)},
                           *parseDate(date));
        std::string times;
        for (const Punch& punch : punchesOf(day))
            times += timeText(punch.value()) + " ";
        return times;
    };
    EXPECT_EQ(text("01", "001", "04/03/2024"), "07:57 12:00 13:05 16:59 ");
    EXPECT_EQ(text("01", "002", "04/03/2024"), "08:04 11:58 13:01 17:03 ");
    EXPECT_EQ(text("02", "001", "04/03/2024"), "07:57 12:04 13:01 17:00 ");
}

TEST(MinutesOption, OneMeansVaried) {
    testing::TestWorkplace desk;
    struct Case {
        const char* file;
        Minutes minutes;
    };
    for (const Case& c : {Case{"1\r\n", Minutes::Varied}, Case{" 1 ", Minutes::Varied},
                          Case{"0\r\n", Minutes::Fixed}, Case{"2\r\n", Minutes::Fixed},
                          Case{"", Minutes::Fixed}, Case{"x1", Minutes::Fixed}}) {
        desk.file("MinFixVar") = c.file;
        EXPECT_EQ(loadMinutes(desk.store()), c.minutes) << c.file;
    }
    desk.files.content.clear();
    EXPECT_EQ(loadMinutes(desk.store()), Minutes::Fixed);
    saveMinutes(desk.store(), Minutes::Varied);
    EXPECT_EQ(desk.file("MinFixVar"), "1\r\n");
}

}  // namespace
}  // namespace winvrx
