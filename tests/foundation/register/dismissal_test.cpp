#include "foundation/register/dismissal.h"

#include "foundation/register/employee_register.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace testing;

const EmployeeKey kAna{*CompanyCode::parse("01"), *EmployeeCode::parse("001")};

TEST(Dismissal, WhatRegisterAndLeavesSayDifferentlyIsSaid) {
    struct Case {
        const char* dismissal;
        const char* inactiveSince;
        const char* said;
    };
    for (const Case& c :
         {Case{"", "", ""},
          {"10/02/2024", "10/02/2024", ""},
          {"", "10/02/2024",
           "Demissão no cadastro: nenhuma; nos afastamentos: inativo desde 10/02/2024."},
          {"10/02/2024", "", "Demissão no cadastro: 10/02/2024; nos afastamentos: ativo."},
          {"09/02/2024", "10/02/2024",
           "Demissão no cadastro: 09/02/2024; nos afastamentos: inativo desde 10/02/2024."},
          {"31/02/2024", "", "Demissão no cadastro: 31/02/2024; nos afastamentos: ativo."}}) {
        Employee ana = employee("001", "ANA");
        ana.dismissal = c.dismissal;
        EXPECT_EQ(dismissalContradiction(ana, parseDate(c.inactiveSince)), c.said);
    }
}

struct DismissalDesk : ::testing::Test, TestWorkplace {
    const std::string ended = leaveBytes({}, "15/03/2024");

    void SetUp() override {
        file("01CartaPonto") = employeeList({employee("001", "ANA"), employee("002", "BIA")});
        file("01configAf001") = leaveBytes({});
    }
    std::string dismissal() {
        return EmployeeRegister(store(), kAna.company).load().at(0).record.dismissal;
    }
    void save(const std::string& bytes) { saveLeaveFile(store(), kAna, bytes, clock.now()); }
};

TEST_F(DismissalDesk, TheRegisterFollowsAChangeOfTheStatusOnly) {
    save(leaveBytes({vacation("01/03/2024", "10/03/2024")}));
    EXPECT_EQ(dismissal(), "");
    save(ended);
    EXPECT_EQ(dismissal(), "15/03/2024");
    EXPECT_EQ(file("01configAf001"), ended);
    // Typed in the register since: it stays until the status changes.
    Employee ana = employee("001", "ANA");
    ana.dismissal = "01/03/2024";
    file("01CartaPonto") = employeeList({ana});
    save(leaveBytes({vacation("01/02/2024", "10/02/2024")}, "15/03/2024"));
    EXPECT_EQ(dismissal(), "01/03/2024");
    save(leaveBytes({}));
    EXPECT_EQ(dismissal(), "");
}

TEST_F(DismissalDesk, BothAreWrittenOrNone) {
    const auto before = files.content;
    files.failWritesOn = {"01configAf001"};
    EXPECT_THROW(save(ended), FileFault);
    EXPECT_EQ(files.content["/data/01CartaPonto"], before.at("/data/01CartaPonto"));
    EXPECT_EQ(files.content["/data/01configAf001"], before.at("/data/01configAf001"));
    files.failWritesOn = {"01CartaPonto"};
    EXPECT_THROW(save(ended), FileFault);
    EXPECT_EQ(file("01configAf001"), before.at("/data/01configAf001"));
    files.failWritesOn.clear();
    file("01CartaPonto") = employeeList({employee("002", "BIA")});
    EXPECT_THROW(save(ended), Fault);
    EXPECT_EQ(file("01configAf001"), before.at("/data/01configAf001"));
}

}  // namespace
}  // namespace winvrx
