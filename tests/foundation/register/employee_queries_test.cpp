#include "foundation/register/employee_queries.h"

#include "foundation/register/leave_record.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

const DataFolder kFolder('C', "/data");
const CompanyCode kCompany = *CompanyCode::parse("01");
const EmployeeCode kAna = *EmployeeCode::parse("001");
const EmployeeCode kBia = *EmployeeCode::parse("002");

TEST(RecordedAnswers, AnswerFromTheFilesOfTheCompany) {
    testing::MemoryFiles files;
    const RecordedAnswers locks({files, kFolder});
    for (const char* name : {"02fp0000103-2024.bdx", "01001-03-2024.bdx", "01fp0000203-2024.bdx"})
        files.content[kFolder.file(name)] = "";
    EXPECT_FALSE(locks.hasClosedMonth({kCompany, kAna}));
    EXPECT_TRUE(locks.hasClosedMonth({kCompany, kBia}));
    EXPECT_TRUE(locks.isClosed({kCompany, kBia}, *parseMonthKey("03-2024")));
    EXPECT_FALSE(locks.isClosed({kCompany, kBia}, *parseMonthKey("04-2024")));
    EXPECT_FALSE(locks.isClosed({kCompany, kAna}, *parseMonthKey("03-2024")));
    files.content["/data/01configAf002"] = files.content["/data/01configAfx"] = "";
    const FolderNames names = namesIn({files, kFolder});
    const std::set<EmployeeCode> bia{kBia};
    EXPECT_EQ(locks.closedIn(kCompany, *parseMonthKey("03-2024"), names), bia);
    EXPECT_TRUE(locks.closedIn(kCompany, *parseMonthKey("04-2024"), names).empty());
    EXPECT_EQ(employeesWithLeaveFile(kCompany, names), bia);
}

}  // namespace
}  // namespace winvrx
