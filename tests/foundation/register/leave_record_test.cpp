#include "foundation/register/leave_record.h"

#include "tests/support/memory_files.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::IsEmpty;
using namespace std::chrono_literals;

const DataFolder kFolder('C', "/data");
const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");

/// The line as it stands on disk: what lies between the columns is blank.
const std::string kTermination =
    "008 RESCIS\xC3O_CONTRATO_TRABALHO01/03/2024  31/03/2024  030 Dias e 0 Horas  "
    "29/02/2024  30/03/2024  03. Pedido de Demiss\xE3o" +
    std::string(33, ' ') + "  01. Aviso Trabalhado  01/03/2024  31/03/2024  08/04/2024";

TEST(LeaveRecord, ReadsAndWritesEveryColumn) {
    const Leave leave{"008 RESCISÃO_CONTRATO_TRABALHO",
                      "01/03/2024",
                      "31/03/2024",
                      "030 Dias e 0 Horas",
                      "29/02/2024",
                      "30/03/2024",
                      "03. Pedido de Demissão",
                      "01. Aviso Trabalhado",
                      "01/03/2024",
                      "31/03/2024",
                      "08/04/2024"};
    EXPECT_EQ(decodeLeave(kTermination), leave);
    EXPECT_EQ(encode(leave), kTermination);
    EXPECT_EQ(encode(leave, kTermination + " more"), kTermination + " more");
    for (const char* none : {"", "**** ", "nota", "08 X", "0081"})
        EXPECT_EQ(decodeLeave(none).has_value(), std::string_view(none) == "0081") << none;
}

TEST(LeaveRecord, LeavesAreTheNumberedLinesOfTheEmployeesFile) {
    testing::MemoryFiles files;
    EXPECT_THAT(loadLeaves({files, kFolder}, {kCompany, kAna}).periods, IsEmpty());

    const auto line = [](const char* type, const char* first, const char* last) {
        Leave leave;
        leave.type = type;
        leave.firstDay = first;
        leave.lastDay = last;
        return encode(leave);
    };
    files.content["/data/01configAf001"] = joinedLines(
        {line("006 FÉRIAS", "20/02/2024", "05/03/2024"), "nota",
         line("008 RESCISÃO_CONTRATO_TRABALHO", "31/03/2024", "31/03/2024"),
         line("007 ATESTADO_DECALRAÇÃO", "31/02/2024", "02/03/2024"),
         line("003 AUXILIO_DOENÇA", "10/03/2024", "09/03/2024"), leaveStatusLine(std::nullopt)});
    const EmployeeLeaves leaves = loadLeaves({files, kFolder}, {kCompany, kAna});
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

TEST(LeaveStatus, ADateBehindTheMarkMakesInactive) {
    struct Case {
        const char* file;
        const char* since;
    };
    for (const Case& c : {Case{"", ""},
                          {"**** \r\n", ""},
                          {"**** 10/02/2024\r\n", "10/02/2024"},
                          {"****\r\n", ""},
                          {"**** 31/02/2024\r\n", ""},
                          {"006 F\xC9RIAS\r\n**** 10/02/2024", "10/02/2024"},
                          {"008 RESCIS\xC3O 10/02/2024\r\n**** \r\n", ""},
                          {"*** 10/02/2024\r\n", ""}}) {
        const auto since = inactiveSince(c.file);
        EXPECT_EQ(since ? dateText(*since) : "", c.since) << c.file;
    }
}

}  // namespace
}  // namespace winvrx
