#include "tests/support/card_screen.h"
#include "timecard/rotation/rotation_records.h"

namespace winvrx {
namespace {

using namespace testing;

/// 999 employees of a rotation scale, of whom one is inactive and one has a closed month.
struct LongList : CardScreen {
    const RecordedAnswers records{desk.store()};
    const RotationRecords rotation{desk.store(), desk.clock};
    CartaoPontoDados office{desk.at, {rotation, records}};

    void SetUp() override {
        CardScreen::SetUp();
        std::vector<Employee> people;
        GroupLines groups;
        for (int number = 1; number <= EmployeeCode::kHighest; ++number) {
            const std::string code = EmployeeCode::fromNumber(number)->text();
            people.push_back(employee(code.c_str(), "N", "Unico", "5x1"));
            RotationGroup group{.number = number, .firstDayOff = parseDate("01/03/2024")};
            group.places = {EmployeeCode::parse(code)};
            groups.push_back(lineOf(recordOf(group)));
        }
        hire(people);
        groupFile(desk.store(), *CompanyCode::parse("01"), *parseMonthKey("03-2024")).save(groups);
        desk.files.reads = 0;
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
