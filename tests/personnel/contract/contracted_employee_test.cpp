#include "personnel/contract/contracted_employee.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(ContractedEmployee, TellsTheFirstThatIsMissing) {
    using testing::leaveBytes;
    testing::TestWorkplace desk;
    const Employee ana = testing::employee("001", "ANA");
    const Employee nobody;
    const auto company = desk.at.session.company;
    struct Case {
        bool hasCompany;
        const Employee* employee;
        std::string leaves;
        bool hasContract;
        std::string text;
    };
    const std::string contract = "Não Existe Contrato de Trabalho Gerado para este Funcionário!!";
    for (const Case& c :
         {Case{false, nullptr, "", false, "Cadastre Primeiro Uma Empresa!!"},
          Case{true, nullptr, "", true, "É necessário Selecioar um Funcionário na Lista!!"},
          Case{true, &nobody, "", true, "É necessário Selecioar um Funcionário na Lista!!"},
          Case{true, &ana, leaveBytes({}, "10/02/2024"), false,
               "Este Funcionário Encontra-se Inativo!!"},
          Case{true, &ana, leaveBytes({}, "10/02/2024"), true,
               "Este Funcionário Encontra-se Inativo!!"},
          Case{true, &ana, leaveBytes({}), false, contract}, Case{true, &ana, "", false, contract},
          Case{true, &ana, leaveBytes({}), true, ""}}) {
        desk.files.content.clear();
        desk.file("01contrato002") = "another employee's";
        if (!c.leaves.empty()) desk.file("01configAf001") = c.leaves;
        if (c.hasContract) desk.file("01contrato001") = "";
        desk.at.session.company = c.hasCompany ? company : std::nullopt;
        desk.person.shown.clear();
        EXPECT_EQ(requireContractedEmployee(desk.at, c.employee, employeeIsNeeded()),
                  c.text.empty());
        EXPECT_EQ(desk.person.shown.size(), c.text.empty() ? 0U : 1U);
        EXPECT_EQ(c.text, c.text.empty() ? "" : desk.person.shown.back().text);
    }
    EXPECT_EQ(searchAndSelectEmployee().text, "Pesquise e Selecione um Funcionário na Lista! ");
}

}  // namespace
}  // namespace winvrx
