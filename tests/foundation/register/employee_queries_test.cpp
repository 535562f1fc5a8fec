#include "foundation/register/employee_queries.h"

#include "foundation/register/leave_status.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

const DataFolder kFolder('C', "/data");
const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");
const EmployeeCode kBia = *EmployeeCode::parse("002");

TEST(RecordedLocks, AnswerFromTheFilesOfTheCompany) {
    testing::MemoryFiles files;
    const RecordedLocks locks({files, kFolder});
    for (const char* name : {"02fp0000103-2024.bdx", "01001-03-2024.bdx", "01fp0000203-2024.bdx"})
        files.content[kFolder.file(name)] = "";
    files.content["/data/02GRUPO-001032024.er"] = "001 ANA\r\n";
    files.content["/data/01GRUPO-001032024.er"] = "GRUPO-001\r\n002 BIA\r\n";
    EXPECT_FALSE(locks.hasClosedMonth({kCompany, kAna}));
    EXPECT_TRUE(locks.hasClosedMonth({kCompany, kBia}));
    EXPECT_TRUE(locks.isClosed({kCompany, kBia}, *parseMonthKey("03-2024")));
    EXPECT_FALSE(locks.isClosed({kCompany, kBia}, *parseMonthKey("04-2024")));
    EXPECT_FALSE(locks.isClosed({kCompany, kAna}, *parseMonthKey("03-2024")));
    EXPECT_FALSE(locks.isMember({kCompany, kAna}));
    EXPECT_TRUE(locks.isMember({kCompany, kBia}));
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

TEST(LeaveStatus, InactiveAreThoseOfTheCompany) {
    testing::MemoryFiles files;
    files.content["/data/01configAf001"] = "**** 10/02/2024\r\n";
    files.content["/data/01configAf002"] = "**** \r\n";
    files.content["/data/02configAf002"] = "**** 10/02/2024\r\n";
    files.content["/data/01configAfx"] = "**** 10/02/2024\r\n";
    const auto inactive = inactiveEmployees({files, kFolder}, kCompany);
    ASSERT_EQ(inactive.size(), 1U);
    EXPECT_EQ(inactive.begin()->first, kAna);
}

}  // namespace
}  // namespace winvrx
