#include "foundation/register/empresa.h"

#include "foundation/register/employee_register.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::TestWorkplace;

constexpr auto kFirstConfirmation = "Confirma a Exclusão do Item Selecionado?";
constexpr auto kHasEmployees =
    "ATENCAO!!! Não é Possível Excluir agora. Existem Funcioários Cadastrados nesta Empresa! "
    "Deseja Excluir toda lista de Funcionário Incluindo desta Empresa Selecionada?";
constexpr auto kDeletesEmployees =
    "Este Comando irá Exluir a Empresa e a Lista de Funcionarios. Deseja Continuar?";
constexpr auto kCertain = "Tem Certeza que Deseja Excluir o Item Selecionado?";

Company named(const std::string& name) {
    Company company;
    company.name = name;
    return company;
}

class EmpresaTest : public ::testing::Test {
  protected:
    EmpresaTest() { empresa_.load(); }

    /// Registers "02" and "03"; "02" has an employee and his schedule.
    void addCompanies() {
        desk_.person.answers = {Answer::Yes, Answer::Yes};
        ASSERT_TRUE(empresa_.include(named("PADARIA")));
        ASSERT_TRUE(empresa_.include(named("OFICINA")));
        Employee employee;
        employee.code = "001";
        desk_.file("02CartaPonto") = encode(employee) + "\r\n";
        desk_.file("02PadrHor001.pdx") = "08:00";
        desk_.file("03PadrHor001.pdx") = "09:00";
        desk_.person.shown.clear();
    }

    [[nodiscard]] std::string codes() const {
        std::string text;
        for (const CompanyLine& line : empresa_.lines())
            text += line.record.code + " ";
        return text;
    }

    TestWorkplace desk_;
    bool removeWith(DeleteOption option, std::size_t position) {
        empresa_.choose(option);
        return empresa_.remove(position);
    }

    Empresa empresa_{desk_.at};
};

TEST_F(EmpresaTest, IncludeAppendsUnderTheNextCode) {
    EXPECT_EQ(empresa_.proposedCode()->text(), "02");
    desk_.file("02Impresstec") = "left behind by an earlier company";
    desk_.person.answers = {Answer::Yes};
    Company typed = named("  PADARIA DO ZÉ ");
    typed.code = "77";
    typed.recordDate = "01/01/1900";
    EXPECT_TRUE(empresa_.include(typed));
    EXPECT_EQ(desk_.person.shown[0].title, "INCLUSÃO");
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma a Inclusão?"));
    const Company stored = loadCompanies(desk_.store()).at(1).record;
    EXPECT_EQ(stored.code, "02");
    EXPECT_EQ(stored.name, "PADARIA DO ZÉ");
    EXPECT_EQ(stored.recordDate, "15/03/2024");
    EXPECT_EQ(empresa_.lines().at(1).record, stored);
    EXPECT_FALSE(desk_.files.exists("/data/02Impresstec"));
}

TEST_F(EmpresaTest, AnsweringNoLeavesEverything) {
    addCompanies();
    const auto before = desk_.files.content;
    EXPECT_FALSE(empresa_.include(named("NOVA")));
    EXPECT_FALSE(empresa_.change(1, named("OUTRA")));
    for (std::size_t yeses = 0; yeses < 4; ++yeses) {
        desk_.person.answers.assign(yeses, Answer::Yes);
        desk_.person.answers.push_back(Answer::No);
        EXPECT_FALSE(empresa_.remove(1)) << yeses;
    }
    EXPECT_EQ(desk_.files.content, before);
    EXPECT_EQ(codes(), "01 02 03 ");
}

TEST_F(EmpresaTest, ChangeKeepsCodeAndOrder) {
    addCompanies();
    desk_.person.answers = {Answer::Yes};
    Company typed = named("EMPRESA NOVA");
    typed.code = "99";
    EXPECT_TRUE(empresa_.change(0, typed));
    EXPECT_EQ(desk_.person.shown[0].title, "ALTERAÇÃO");
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma a Alteração do Item Selecionado?"));
    EXPECT_EQ(codes(), "01 02 03 ");
    EXPECT_EQ(loadCompanies(desk_.store())[0].record.name, "EMPRESA NOVA");
}

TEST_F(EmpresaTest, TheFirstCompanyStays) {
    desk_.person.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    EXPECT_FALSE(removeWith(DeleteOption::CompanyAndEmployees, 0));
    ASSERT_EQ(desk_.person.shown.size(), 1U);
    EXPECT_EQ(desk_.person.shown[0].title, "Excluindo Empresa");
    EXPECT_EQ(desk_.person.shown[0].icon, Icon::Critical);
    EXPECT_EQ(desk_.person.shown[0].text,
              "ATENCAO!!! Não é Possível Excluir a Primeira Empresa. Você Pode Alterar os Dados "
              "Cadastrados nesta Empresa! ");
    EXPECT_EQ(codes(), "01 ");
}

TEST_F(EmpresaTest, DeletionAsksWhatItsOptionCallsFor) {
    struct Case {
        std::size_t position;
        DeleteOption option;
        std::vector<std::string> questions;
    };
    const std::vector<Case> cases = {
        {1,
         DeleteOption::CompanyOnly,
         {kFirstConfirmation, kHasEmployees, kDeletesEmployees, kCertain}},
        {1, DeleteOption::CompanyAndEmployees, {kFirstConfirmation, kDeletesEmployees, kCertain}},
        {2, DeleteOption::CompanyOnly, {kFirstConfirmation, kCertain}},
    };
    addCompanies();
    const auto before = desk_.files.content;
    for (const Case& c : cases) {
        desk_.files.content = before;
        empresa_.load();
        desk_.person.answers.assign(c.questions.size(), Answer::Yes);
        EXPECT_TRUE(removeWith(c.option, c.position));
        EXPECT_EQ(desk_.person.takeTexts(), c.questions);
        EXPECT_EQ(codes(), c.position == 1 ? "01 03 " : "01 02 ");
        EXPECT_EQ(desk_.files.exists("/data/02CartaPonto"), c.position != 1);
        EXPECT_EQ(desk_.files.exists("/data/02PadrHor001.pdx"), c.position != 1);
        EXPECT_EQ(desk_.files.exists("/data/03PadrHor001.pdx"), c.position != 2);
    }
}

TEST_F(EmpresaTest, ADeletedCompanyIsNoLongerSelected) {
    addCompanies();
    desk_.session.company = CompanyCode::parse("03");
    desk_.person.answers.assign(2, Answer::Yes);
    EXPECT_TRUE(empresa_.remove(2));
    EXPECT_EQ(desk_.session.company, std::nullopt);
}

TEST_F(EmpresaTest, FilesStayWhileAnotherLineBearsTheCode) {
    addCompanies();
    desk_.file("01Empresa") += encode(empresa_.lines()[1].record) + "\r\n";
    empresa_.load();
    desk_.person.answers.assign(4, Answer::Yes);
    EXPECT_TRUE(empresa_.remove(3));
    EXPECT_EQ(codes(), "01 02 03 ");
    EXPECT_TRUE(desk_.files.exists("/data/02CartaPonto"));
}

TEST_F(EmpresaTest, FaultsLeaveListAndFilesAsTheyWere) {
    addCompanies();
    const auto before = desk_.files.content;
    Company emoji = named("PADARIA 😀");
    const auto refused = [&](auto&& command) {
        desk_.person.answers.assign(4, Answer::Yes);
        EXPECT_FALSE(command());
        EXPECT_EQ(desk_.person.shown.back().title, "Erro");
        EXPECT_EQ(desk_.person.shown.back().text, "Dados incorretos!");
        EXPECT_EQ(desk_.person.shown.back().icon, Icon::Critical);
        EXPECT_EQ(desk_.files.content, before);
        EXPECT_EQ(codes(), "01 02 03 ");
    };
    refused([&] { return empresa_.include(emoji); });
    refused([&] { return empresa_.change(1, emoji); });
    desk_.files.failWritesOn = {"01Empresa"};
    refused([&] { return empresa_.include(named("NOVA")); });
    refused([&] { return empresa_.change(1, named("NOVA")); });
    refused([&] { return removeWith(DeleteOption::CompanyAndEmployees, 1); });
    EXPECT_NE(desk_.log.entries.back().find("01Empresa"), std::string::npos);
}

TEST_F(EmpresaTest, AListChangedElsewhereIsNotOverwritten) {
    addCompanies();
    Company other = empresa_.lines()[1].record;
    other.telephone = "11 5555-0000";
    desk_.file("01Empresa") =
        joinedLines({empresa_.lines()[0].bytes, encode(other), empresa_.lines()[2].bytes});
    const auto before = desk_.files.content;
    desk_.person.answers.assign(5, Answer::Yes);
    EXPECT_FALSE(empresa_.change(1, named("MINHA")));
    EXPECT_FALSE(removeWith(DeleteOption::CompanyAndEmployees, 1));
    EXPECT_EQ(desk_.files.content, before);
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(empresa_.include(named("NOVA")));
    EXPECT_EQ(empresa_.lines()[1].record.telephone, "11 5555-0000");
    desk_.files.content.clear();
    desk_.person.answers = {Answer::Yes};
    EXPECT_FALSE(empresa_.include(named("OUTRA")))
        << "another folder stands in the old one's place";
    EXPECT_TRUE(desk_.files.content.empty());
}

TEST_F(EmpresaTest, TheFirstCompanyIsTheFirstThatIsUnderstood) {
    addCompanies();
    desk_.file("01Empresa").insert(0, "torn\r\n");
    empresa_.load();
    desk_.person.answers.assign(6, Answer::Yes);
    EXPECT_FALSE(removeWith(DeleteOption::CompanyAndEmployees, 1));
    EXPECT_EQ(desk_.person.shown.back().title, "Excluindo Empresa");
    EXPECT_TRUE(removeWith(DeleteOption::CompanyOnly, 0)) << "what is no company can go";
    EXPECT_EQ(codes(), "01 02 03 ");
    desk_.file("01Empresa") += empresa_.lines()[2].bytes + "\r\n";  // by another computer
    desk_.files.failOn = {"02PadrHor001.pdx"};
    desk_.person.answers.assign(6, Answer::Yes);
    EXPECT_FALSE(removeWith(DeleteOption::CompanyAndEmployees, 1));
    EXPECT_EQ(codes(), "01 02 03 ") << "the list changes only with a success";
}

}  // namespace
}  // namespace winvrx
