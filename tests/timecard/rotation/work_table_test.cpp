#include "timecard/rotation/work_table.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

/// The rows that have times, as "rows x first pair, second pair".
std::string summaryOf(const WorkTable& table) {
    std::string text;
    for (const TableRow& row : table.rows) {
        for (const std::string& time : row)
            text += time.empty() ? "" : time + " ";
        text += "|";
    }
    return text;
}

TEST(WorkTable, HasItsDefaults) {
    const std::string day = "07:00 12:00 13:00 17:00 |";
    const std::string sixth = "09:00 12:00 13:00 17:20 |";
    const auto sixTimes = [](const std::string& row) {
        return row + row + row + row + row + row + "|";
    };
    struct Case {
        Shift shift;
        Scale scale;
        std::string rows;
        std::chrono::seconds weekly;
    };
    for (const Case& c :
         std::vector<Case>{{Shift::Unico, Scale::Normal,
                            day + day + day + day + "07:00 12:00 13:00 16:00 |||", 44h},
                           {Shift::Unico, Scale::FiveByOne, sixTimes(sixth), 44h},
                           {Shift::Um, Scale::Normal, sixTimes("06:00 14:00 |"), 48h},
                           {Shift::Dois, Scale::FiveByOne, sixTimes("14:00 22:00 |"), 48h},
                           {Shift::Tres, Scale::FiveByOne, sixTimes("22:00 06:00 |"), 48h},
                           {Shift::Um, Scale::TwelveByThirtySix,
                            "07:00 19:00 ||07:00 19:00 ||07:00 19:00 |||", 36h},
                           {Shift::Tres, Scale::TwelveByThirtySix,
                            "19:00 07:00 ||19:00 07:00 ||19:00 07:00 |||", 36h}}) {
        const WorkTable table = standardTable(c.shift, c.scale);
        EXPECT_EQ(summaryOf(table), c.rows);
        EXPECT_EQ(weeklyHours(table), c.weekly) << c.rows;
        EXPECT_EQ(findingIn(table), std::nullopt);
        EXPECT_EQ(decodeTable(encode(table)), table);
        EXPECT_EQ(timesOn(table, std::chrono::Sunday),
                  timesOf(table.rows[c.scale == Scale::Normal ? 4 : 0]));
    }
}

TEST(WorkTable, SaysWhatIsWrong) {
    struct Case {
        const char* what;
        std::size_t row;
        std::size_t cell;
        const char* text;
        bool right;
    };
    for (const Case& c : std::vector<Case>{{"no time", 0, 0, "25:00", false},
                                           {"half a pair", 2, 1, "", false},
                                           {"a weekday of its own", 4, 1, "13:00", false},
                                           {"a Saturday of its own", 5, 1, "13:00", true},
                                           {"a Sunday of its own", 6, 0, "", true}}) {
        WorkTable table = standardTable(Shift::Um, Scale::FiveByOne);
        table.rows[c.row][c.cell] = c.text;
        EXPECT_EQ(findingIn(table) == std::nullopt, c.right) << c.what;
    }
}

TEST(WorkTable, KeepsWhatItDoesNotChange) {
    testing::TestWorkplace desk;
    const CompanyCode company = *CompanyCode::parse("01");
    WorkTable table = standardTable(Shift::Tres, Scale::FiveByOne);
    desk.file("01er.rdx") = "strange line\r\nTres  5x1   22:00xx:yy          22:00\x81\r\n";
    EXPECT_EQ(loadTable(desk.store(), company, Shift::Tres, Scale::FiveByOne).rows[0][1], "xx:yy");
    EXPECT_EQ(loadTable(desk.store(), company, Shift::Um, Scale::FiveByOne).rows[0][1], "14:00");
    table.rows[0][1] = "05:30";
    saveTable(desk.store(), company, table);
    EXPECT_EQ(desk.file("01er.rdx").substr(0, 41), "strange line\r\nTres  5x1   22:0005:30     ");
    EXPECT_EQ(loadTable(desk.store(), company, Shift::Tres, Scale::FiveByOne), table);
    EXPECT_EQ(splitLines(desk.file("01er.rdx")).size(), 2U);
}

}  // namespace
}  // namespace winvrx
