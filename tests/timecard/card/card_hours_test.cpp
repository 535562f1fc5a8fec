// The hours that the time-card screen shows.
#include "tests/support/card_screen.h"
#include "timecard/month/overtime_record.h"

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using testing::kPunches;
using testing::kSchedule;

/// Ana's card: eight hours a day, the 4th and the 5th punched, every other day excused.
struct CardHours : testing::CardScreen {
    void SetUp() override {
        CardScreen::SetUp();
        desk.file(kSchedule) = "08:0012:0013:0017:00";
        openOn(0);
        for (int day = 1; day <= 31; ++day)
            screen.sheet().type(day, PunchCell::Situation, "Abonado");
        punch(4, "08:04", "18:00");
        punch(5, "08:30", "17:00");
    }

    void punch(int day, const char* entry, const char* exit) {
        screen.sheet().type({{day, PunchCell::Situation, ""},
                             {day, PunchCell::MorningEntry, entry},
                             {day, PunchCell::MorningExit, "12:00"},
                             {day, PunchCell::AfternoonEntry, "13:00"},
                             {day, PunchCell::AfternoonExit, exit}});
    }
    [[nodiscard]] std::string figure(HourCategory category) {
        return screen.days().hours().figure(category, std::nullopt);
    }
};

TEST_F(CardHours, FollowEachEditOfCardAndSchedule) {
    EXPECT_EQ(screen.days().totalOf(4), "08:56");
    EXPECT_EQ(screen.days().differenceOf(4), "+00:56");
    EXPECT_EQ(screen.days().differenceOf(5), "-00:30");
    EXPECT_EQ(screen.days().totalOf(HalfMonth::First), "16:26");
    EXPECT_EQ(figure(HourCategory::ExtraMinimum), "00:56");
    EXPECT_EQ(figure(HourCategory::Missing), "00:30");
    punch(4, "08:04", "17:03");
    EXPECT_EQ(screen.days().differenceOf(4), "") << "tolerated";
    EXPECT_EQ(figure(HourCategory::ExtraMinimum), "00:00");
    screen.schedule().type(0, "08:30");
    EXPECT_EQ(figure(HourCategory::Missing), "00:00");
    EXPECT_EQ(figure(HourCategory::ExtraMinimum), "00:29") << "from 08:04, past the limit";
}

TEST_F(CardHours, AMonthWithoutPunchesHasNoFigures) {
    ASSERT_TRUE(screen.sheet().undo());
    while (screen.sheet().undo()) {
    }
    EXPECT_EQ(figure(HourCategory::Missing), "00:00");
    EXPECT_EQ(screen.days().differenceOf(4), "");
}

TEST_F(CardHours, TimesLeftOnAnAbsenceAreNotCountedAndPointedOut) {
    screen.sheet().type(4, PunchCell::Situation, "Falta");
    screen.sheet().type(4, PunchCell::MorningEntry, "08:04");
    EXPECT_EQ(screen.days().totalOf(4), "");
    EXPECT_EQ(screen.days().differenceOf(4), "-08:00");
    EXPECT_EQ(screen.sheet().noticeAt(4, PunchCell::MorningEntry),
              "O dia está marcado como falta: esta hora não conta.");
    EXPECT_EQ(screen.sheet().noticeAt(4, PunchCell::ExtraEntry), "");
    EXPECT_EQ(screen.sheet().noticeAt(5, PunchCell::MorningEntry), "");
    EXPECT_EQ(screen.sheet().findingAt(4, PunchCell::MorningEntry), "") << "it can be recorded";
}

TEST_F(CardHours, APercentageIsChangedForThisEmployeeAndMonth) {
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.changePercent(HourCategory::ExtraMinimum, "60"));
    EXPECT_EQ(screen.days().hours().caption(HourCategory::ExtraMinimum), "Hora Extra 60%");
    desk.person.answers = {Answer::No};
    EXPECT_FALSE(screen.changePercent(HourCategory::ExtraMinimum, "70"));
    EXPECT_EQ(screen.days().hours().caption(HourCategory::ExtraMinimum), "Hora Extra 60%");
    desk.person.answers = {Answer::No, Answer::No};
    openOn(2);
    EXPECT_EQ(screen.days().hours().caption(HourCategory::ExtraMinimum), "Hora Extra 50%");
    openOn(0);
    EXPECT_EQ(screen.days().hours().caption(HourCategory::ExtraMinimum), "Hora Extra 60%");
}

TEST_F(CardHours, AClosedMonthKeepsItsPercentages) {
    desk.person.answers = {Answer::No};
    asked.locks.closed.insert("001");
    openOn(0);
    const auto before = desk.files.content;
    desk.person.shown.clear();
    EXPECT_FALSE(screen.changePercent(HourCategory::ExtraMinimum, "60"));
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].title, "DIGITAÇÃO DO PONTO");
    EXPECT_EQ(desk.files.content, before);
}

}  // namespace
}  // namespace winvrx
