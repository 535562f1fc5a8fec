#include "timecard/rotation/rotation_checks.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

EmployeeCode code(int number) {
    return *EmployeeCode::fromNumber(number);
}

RotationGroup groupOf(Scale scale, std::size_t listed, Date first) {
    RotationGroup group{.scale = scale, .firstDayOff = first};
    for (std::size_t place = 0; place < listed; ++place)
        group.places.emplace_back(code(static_cast<int>(place) + 1));
    return group;
}

/// With a relief worker, 11, or two in a list of six, off first on the free days.
RotationGroup relieved(std::size_t listed, Date first) {
    RotationGroup group = groupOf(Scale::FiveByOne, listed, first);
    group.relief = {{code(11)}};
    if (listed == kMostPlaces) group.relief.push_back({code(12)});
    for (std::size_t which = 0; which < group.relief.size(); ++which) {
        const auto free = freeForRelief(group, which, monthOf(first));
        group.relief[which].firstDayOff = free.at(which % free.size());
    }
    return group;
}

std::string letterOf(Turn turn) {
    return std::array{"", "F", "R", "A"}.at(static_cast<std::size_t>(turn));
}

/// Who does what over months in a row, each continued from the one before, a letter a day.
std::map<int, std::string> turnsOver(RotationGroup group, WorkMonth first, int months) {
    std::map<int, std::string> turns;
    for (WorkMonth month = first; month < first + std::chrono::months(months);
         month += std::chrono::months(1)) {
        group = continued(group, month);
        EXPECT_EQ(monthOf(*group.firstDayOff), month);
        for (const PlanRow& row : planOf(group, month).rows)
            for (const PlannedDay& day : row.days) {
                const auto letter = letterOf(day.turn);
                turns[row.employee.number()] += letter.empty() ? "." : std::string(letter);
            }
    }
    return turns;
}

/// Whether each `F` stands `rhythm` days behind the one before, the first within the first rhythm.
bool isSteady(const std::string& turns, std::size_t rhythm) {
    const std::size_t first = turns.find('F');
    if (first >= rhythm) return false;
    for (std::size_t day = 0; day < turns.size(); ++day)
        if ((turns[day] == 'F') != (day % rhythm == first)) return false;
    return true;
}

TEST(RotationPlan, TwelveMonthsKeepTheRhythmAndCoverEveryPost) {
    for (const WorkMonth from : {2023y / 7, 2024y / 1, 2025y / 12})
        for (std::size_t listed = 1; listed <= kMostPlaces; ++listed)
            for (const int day : {0, 1, 2, 3, 4, 5, 27}) {
                const RotationGroup group = relieved(listed, plusDays(firstDay(from), day));
                ASSERT_EQ(reliefFinding(group, from), std::nullopt) << listed << " " << day;
                const auto turns = turnsOver(group, from, 12);
                for (const auto& [employee, days] : turns)
                    ASSERT_TRUE(isSteady(days, 6)) << employee << " " << days;
                for (std::size_t at = 0; at < turns.at(1).size(); ++at) {
                    int off = 0;
                    int relief = 0;
                    int listedOff = 0;
                    for (const auto& [employee, days] : turns) {
                        off += days[at] == 'F';
                        listedOff += days[at] == 'F' && employee < 11;
                        relief += days[at] == 'R';
                    }
                    ASSERT_LE(listedOff, 1) << at;
                    ASSERT_EQ(relief, listedOff) << "whoever is off is relieved, day " << at;
                    ASSERT_LE(off, listed == kMostPlaces ? 2 : 1) << at;
                }
            }
}

TEST(RotationPlan, TeamsOf12x36WorkEveryOtherDay) {
    for (const WorkMonth from : {2023y / 7, 2024y / 1, 2025y / 12})
        for (std::size_t teams = 2; teams <= 3; ++teams)
            for (int day = 0; day < 2; ++day) {
                const auto turns = turnsOver(
                    groupOf(Scale::TwelveByThirtySix, teams, plusDays(firstDay(from), day)), from,
                    12);
                for (const auto& [team, days] : turns)
                    ASSERT_TRUE(isSteady(days, 2)) << team;
                ASSERT_EQ(turns.at(1)[0] == 'F', day == 0);
                for (std::size_t at = 0; at < turns.at(1).size(); ++at)
                    ASSERT_NE(turns.at(1)[at], turns.at(2)[at]) << "one of two works, day " << at;
            }
}

/// The worked month of docs/rotation.md.
TEST(RotationPlan, AMonthByHand) {
    RotationGroup group = groupOf(Scale::FiveByOne, 4, Date{2024y / 3 / 5});
    group.places[1].reset();
    group.relief = {{code(11), Date{2024y / 3 / 9}}};
    const RotationPlan plan = planOf(group, 2024y / 3);
    const auto line = [&](std::size_t row) {
        std::string text;
        for (const PlannedDay& day : plan.rows[row].days)
            text += letterOf(day.turn).empty() ? "." : letterOf(day.turn);
        return text;
    };
    EXPECT_EQ(line(0), "....F.....F.....F.....F.....F..") << "off before nobody is: 5 - 6 < 1";
    EXPECT_EQ(line(1), "F.....F.....F.....F.....F.....F") << "the second place is vacant";
    EXPECT_EQ(line(2), ".F.....F.....F.....F.....F.....");
    EXPECT_EQ(line(3), "RRF.R.RRF.R.RRF.R.RRF.R.RRF.R.R");
    EXPECT_EQ(plan.rows[3].days[4].relieved, code(1));
    EXPECT_EQ(plan.posts, 3);
    EXPECT_FALSE(plan.hasGap(0));
    group.relief.clear();
    EXPECT_TRUE(planOf(group, 2024y / 3).hasGap(0));
    EXPECT_FALSE(planOf(group, 2024y / 3).hasGap(2));
    const Absence away = [](const EmployeeCode& who, Date date) {
        return who == code(1) && date >= Date{2024y / 3 / 10};
    };
    EXPECT_EQ(planOf(group, 2024y / 3, away).rows[0].days[9].turn, Turn::Away);
    EXPECT_EQ(planOf(group, 2024y / 3, away).rows[0].days[10].turn, Turn::Off);
}

TEST(RotationChecks, SayWhichSundaysAndWhichRestsAreWrong) {
    // 5 x 1 is off on one Sunday of six; 12 x 36 on every other.
    const auto runs = sundayRuns(groupOf(Scale::FiveByOne, 2, Date{2024y / 3 / 3}), 2024y / 3);
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].worked, 4) << "off on the 3rd";
    EXPECT_EQ(runs[1].worked, 5) << "off on 28/01 and again on the 10th";
    EXPECT_TRUE(runs[0].breaksEveryThird());
    EXPECT_TRUE(
        sundayRuns(groupOf(Scale::TwelveByThirtySix, 3, Date{2024y / 3 / 1}), 2024y / 3).empty());

    const RotationGroup march = groupOf(Scale::FiveByOne, 2, Date{2024y / 3 / 5});
    EXPECT_TRUE(brokenRhythms({march}, continued(march, 2024y / 4), 2024y / 4).empty());
    RotationGroup april = continued(march, 2024y / 4);
    april.firstDayOff = plusDays(*april.firstDayOff, 1);
    const auto broken = brokenRhythms({march}, april, 2024y / 4);
    ASSERT_EQ(broken.size(), 2U);
    EXPECT_EQ(broken[0].worked, 6);
    EXPECT_EQ(broken[0].wanted, 5);
}

TEST(RotationChecks, AReliefWorkerRestsWhenNobodyElseDoes) {
    for (std::size_t listed = 1; listed < kMostPlaces; ++listed)
        for (int day = 1; day <= 31; ++day) {
            RotationGroup group = groupOf(Scale::FiveByOne, listed, Date{2024y / 3 / 5});
            group.relief = {{code(11), Date{2024y / 3 / day}}};
            bool free = true;
            for (const PlanRow& row : planOf(group, 2024y / 3).rows)
                free = free && (row.relief ||
                                row.days[static_cast<std::size_t>(day) - 1].turn != Turn::Off);
            EXPECT_EQ(reliefFinding(group, 2024y / 3) == std::nullopt, free)
                << listed << " " << day;
        }
    RotationGroup six = relieved(6, Date{2024y / 3 / 5});
    six.relief[1].firstDayOff = plusDays(*six.relief[0].firstDayOff, 6);
    EXPECT_NE(reliefFinding(six, 2024y / 3), std::nullopt) << "both off at once";
    six.relief.pop_back();
    EXPECT_NE(reliefFinding(six, 2024y / 3), std::nullopt) << "six need a second one";
}

}  // namespace
}  // namespace winvrx
