#include "timecard/punches/leave_calendar.h"

#include "foundation/files/record_file.h"
#include "tests/support/memory_files.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

/// A line of the leave file.
std::string leave(const char* type, const char* first, const char* last) {
    RecordLine line(211);
    line.put({1, 30}, type);
    line.put({31, 10}, first);
    line.put({43, 10}, last);
    return line.bytes();
}

TEST(RecordedLeaves, AreTheNumberedLinesOfTheEmployeesFile) {
    testing::MemoryFiles files;
    const DataFolder folder('C', "/data");
    const RecordedLeaves calendar({files, folder});
    const CompanyCode company = *CompanyCode::parse("01");
    const EmployeeCode ana = *EmployeeCode::parse("001");
    EXPECT_THAT(calendar.leavesOf({company, ana}).periods, IsEmpty());

    files.content["/data/01configAf001"] =
        joinedLines({leave("006 FÉRIAS", "20/02/2024", "05/03/2024"), "nota",
                     leave("008 RESCISÃO_CONTRATO_TRABALHO", "31/03/2024", "31/03/2024"),
                     leave("007 ATESTADO_DECALRAÇÃO", "31/02/2024", "02/03/2024"),
                     leave("003 AUXILIO_DOENÇA", "10/03/2024", "09/03/2024"), "**** "});
    const EmployeeLeaves leaves = calendar.leavesOf({company, ana});
    ASSERT_EQ(leaves.periods.size(), 2U);
    EXPECT_EQ(leaves.unread.size(), 2U);
    struct Case {
        const char* date;
        bool away;
    };
    for (const Case& c :
         {Case{"19/02/2024", false}, Case{"20/02/2024", true}, Case{"05/03/2024", true},
          Case{"06/03/2024", false}, Case{"31/03/2024", true}, Case{"01/04/2024", false}})
        EXPECT_EQ(leaves.contain(*parseDate(c.date)), c.away) << c.date;
    EXPECT_TRUE(leaves.touch(2024y / 2));
    EXPECT_FALSE(leaves.touch(2024y / 4));
}

}  // namespace
}  // namespace winvrx
