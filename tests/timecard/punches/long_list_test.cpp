#include "tests/support/card_screen.h"

namespace winvrx {
namespace {

using namespace testing;

/// 999 employees of a rotation scale, of whom one is inactive and one has a closed month.
struct LongList : CardScreen {
    const RecordedAnswers records{desk.store()};
    CartaoPontoDados office{desk.at, {records, records}};

    void SetUp() override {
        CardScreen::SetUp();
        std::vector<Employee> people;
        std::string group;
        for (int number = 1; number <= EmployeeCode::kHighest; ++number) {
            const std::string code = EmployeeCode::fromNumber(number)->text();
            people.push_back(employee(code.c_str(), "N", "Unico", "5x1"));
            group += code + " N\r\n";
        }
        hire(people);
        desk.file("01GRUPO-001032024.er") = group;
        desk.file("01configAf005") = "**** 10/02/2024\r\n";
        desk.file("01fp0000703-2024.bdx") = "";
    }
};

TEST_F(LongList, TheFolderIsListedOnceForEachCommand) {
    ASSERT_TRUE(office.open());
    EXPECT_EQ(desk.files.listings, 1);
    EXPECT_LT(desk.files.reads, 20) << "presence comes from the names";
    EXPECT_TRUE(office.list().marks(4).isInactiveBefore(office.settings().month));
    EXPECT_TRUE(office.list().marks(6).closed);
    ASSERT_TRUE(office.filterBy(Scale::FiveByOne) && office.select(0));
    EXPECT_EQ(desk.files.listings, 1);
    desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes};
    ASSERT_TRUE(office.applyToAll(false));
    EXPECT_EQ(desk.files.listings, 3) << "for what the questions say, and once they are answered";
    EXPECT_EQ(office.filledCards(), 997);
}

TEST_F(LongList, ALeaveFileThatCannotBeReadIsMarked) {
    desk.files.failOn = {"01configAf005"};
    ASSERT_TRUE(office.open());
    EXPECT_EQ(office.list().employees().size(), 999U);
    EXPECT_TRUE(office.list().marks(4).unreadable);
}

}  // namespace
}  // namespace winvrx
