#include "foundation/register/empregados.h"

#include "tests/support/employee_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::EmployeeDesk;

constexpr auto kInclusion = "Confirma a Inclusão na LISTA DE FUNCIONARIOS?";

Employee ana() {
    return testing::employee("001", "ANA CONCEIÇÃO");
}

class EmpregadosTest : public ::testing::Test {
  protected:
    /// Writes Ana ("001") and Bia ("002") with a file each.
    void addEmployees() {
        Employee bia = ana();
        bia.code = "002";
        bia.name = "BIA";
        desk_.file("01CartaPonto") = joinedLines({encode(ana()) + "TAIL", encode(bia)});
        desk_.file("01PadrHor001.pdx") = "08:00";
        desk_.file("01PadrHor002.pdx") = "09:00";
        empregados_.load();
    }

    /// The command is refused with `text`, and neither disk nor list changes.
    template <typename Command>
    void expectRefusal(const std::string& text, Command&& command) {
        const auto before = desk_.files.content;
        const auto count = empregados_.lines().size();
        desk_.person.answers.assign(3, Answer::Yes);
        EXPECT_FALSE(command()) << text;
        ASSERT_FALSE(desk_.person.shown.empty()) << text;
        EXPECT_EQ(desk_.person.shown.back().text, text) << desk_.person.shown.back().detail;
        EXPECT_EQ(desk_.files.content, before) << text;
        EXPECT_EQ(empregados_.lines().size(), count) << text;
        desk_.person.shown.clear();
    }

    EmployeeDesk desk_;
    Empregados& empregados_ = desk_.empregados;
};

TEST_F(EmpregadosTest, IncludeAppendsToTheCompanysList) {
    empregados_.load();
    EXPECT_EQ(empregados_.proposedCode()->text(), "001");
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(empregados_.include(ana()));
    EXPECT_EQ(desk_.person.shown[0].title, "INCLUSÃO");
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre(kInclusion));
    const std::string& file = desk_.file("01CartaPonto");
    EXPECT_EQ(file.substr(0, 20), "001 ANA CONCEI\xC7\xC3O   ");
    EXPECT_EQ(file.substr(287, 10), "12/03/2024");
    EXPECT_EQ(empregados_.lines().at(0).record.name, "ANA CONCEIÇÃO");
    EXPECT_EQ(empregados_.proposedCode()->text(), "002");
}

TEST_F(EmpregadosTest, IncludeRefusesBeforeItAsks) {
    addEmployees();
    struct Case {
        std::string Employee::*field;
        const char* typed;
        const char* refusal;
    };
    for (const Case& c : {
             Case{&Employee::code, "", "Dados Incompletos!!"},
             {&Employee::name, "   ", "Dados Incompletos!!"},
             {&Employee::admission, "", "Dados Incompletos!!"},
             {&Employee::shift, "", "Dados Incompletos!!"},
             {&Employee::scale, "", "Dados Incompletos!!"},
             {&Employee::admission, "31/02/2024", "Data de Admissão Incorreta!!"},
             {&Employee::admission, "1/3/24", "Data de Admissão Incorreta!!"},
             {&Employee::code, "12", "Dado Incorreto!"},
             {&Employee::code, "../", "Dado Incorreto!"},
             {&Employee::code, "002", "Dado Incorreto!"},
             {&Employee::shift, "Noite", "Dado Incorreto!"},
             {&Employee::scale, "6x2", "Dado Incorreto!"},
             {&Employee::scale, "12x36", "Dado Incorreto!"},
             {&Employee::birthDate, "30/02/1990", "Dado Incorreto!"},
             {&Employee::dismissal, "32/01/2024", "Dado Incorreto!"},
         }) {
        Employee typed = ana();
        typed.code = "003";
        typed.*c.field = c.typed;
        expectRefusal(c.refusal, [&] { return empregados_.include(typed); });
    }
}

TEST_F(EmpregadosTest, TheRefusalNamesWhatIsMissing) {
    EXPECT_FALSE(empregados_.include(Employee{}));
    EXPECT_EQ(desk_.person.shown.at(0).detail,
              "Falta preencher: Código, Nome, Admissão, Turno, Escala.");
}

TEST_F(EmpregadosTest, WithoutACompanyNobodyIsIncluded) {
    desk_.session.company.reset();
    empregados_.load();
    expectRefusal("Cadastre Primeiro Uma Empresa!!", [&] { return empregados_.include(ana()); });
    EXPECT_EQ(noCompany(desk_.at).detail, "");
    desk_.file("01Empresa") = encode(sampleCompany(desk_.clock.today()));
    EXPECT_EQ(noCompany(desk_.at).detail, "Selecione uma empresa na lista.");
}

TEST_F(EmpregadosTest, ScalesAllowTheirShifts) {
    for (const Scale scale : kScales)
        for (const Shift shift : kShifts) {
            desk_.files.content.clear();
            empregados_.load();
            Employee typed = ana();
            typed.shift = codeOf(shift);
            typed.scale = codeOf(scale);
            desk_.person.answers = {Answer::Yes};
            const bool barred = scale == Scale::TwelveByThirtySix &&
                                (shift == Shift::Unico || shift == Shift::Dois);
            EXPECT_EQ(empregados_.include(typed), !barred) << typed.scale << " " << typed.shift;
        }
}

TEST_F(EmpregadosTest, ChangeKeepsCodeStatusAndTail) {
    addEmployees();
    Employee typed = ana();
    typed.code = "077";
    typed.status = "Inativo";
    typed.name = "ANA MARIA";
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(empregados_.change(0, typed));
    EXPECT_EQ(desk_.person.shown[0].title, "ALTERAÇÃO");
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma Alteração deste ITEM?"));
    const EmployeeLine line = empregados_.lines().at(0);
    EXPECT_EQ(line.record.code, "001");
    EXPECT_EQ(line.record.status, "");
    EXPECT_EQ(line.record.name, "ANA MARIA");
    EXPECT_TRUE(line.bytes.ends_with("TAIL"));
    EXPECT_EQ(empregados_.lines().at(1).record.name, "BIA");
}

TEST_F(EmpregadosTest, ChangeRefusesWhatIncludeRefuses) {
    addEmployees();
    Employee typed = ana();
    typed.admission = "31/02/2024";
    expectRefusal("Data de Admissão Incorreta!!", [&] { return empregados_.change(0, typed); });
    typed = ana();
    typed.name = "ANA 😀";
    expectRefusal("Dados incorretos!", [&] { return empregados_.change(0, typed); });
    expectRefusal("Dados incorretos!", [&] { return empregados_.change(7, ana()); });
}

TEST_F(EmpregadosTest, RemoveTakesTheLineAndTheFiles) {
    addEmployees();
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(empregados_.remove(0));
    EXPECT_EQ(desk_.person.shown[0].title, "EXCLUSÃO");
    EXPECT_EQ(desk_.person.shown[0].detail, "001 ANA CONCEIÇÃO, 1 arquivo");
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Deseja Excluir o ìtem Selecionado da LISTA DE FUNCIONARIOS?"));
    ASSERT_EQ(empregados_.lines().size(), 1U);
    EXPECT_EQ(desk_.file("01CartaPonto").substr(0, 7), "002 BIA");
    EXPECT_FALSE(desk_.files.exists("/data/01PadrHor001.pdx"));
    EXPECT_TRUE(desk_.files.exists("/data/01PadrHor002.pdx"));
}

TEST_F(EmpregadosTest, AnsweringNoLeavesEverything) {
    addEmployees();
    const auto before = desk_.files.content;
    Employee carla = ana();
    carla.code = "003";
    EXPECT_FALSE(empregados_.include(carla));
    EXPECT_FALSE(empregados_.change(0, carla));
    EXPECT_FALSE(empregados_.remove(0));
    EXPECT_EQ(desk_.files.content, before);
    EXPECT_EQ(desk_.person.shown.size(), 3U);
}

TEST_F(EmpregadosTest, AFullDiskRefusesBeforeAnythingIsGone) {
    addEmployees();
    desk_.files.failWritesOn = {"01CartaPonto"};
    desk_.file("bk-0115-03-2024-10-00.bkp") = desk_.file("01CartaPonto");
    Employee carla = ana();
    carla.code = "003";
    expectRefusal("Dados incorretos!", [&] { return empregados_.include(carla); });
    expectRefusal("Dados incorretos!", [&] { return empregados_.change(0, ana()); });
    expectRefusal("Dados incorretos!", [&] { return empregados_.remove(0); });
}

TEST_F(EmpregadosTest, AnUnreadableLeaveFileMarksItsEmployeeOnly) {
    addEmployees();
    desk_.file("01configAf002") = "**** 10/02/2024\r\n";
    empregados_.load();
    EXPECT_EQ(empregados_.counts(), "1 ativo, 1 inativo");
    desk_.files.failOn = {"01configAf002"};
    empregados_.load();
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre());
    EXPECT_EQ(empregados_.counts(), "1 ativo, 0 inativos, 1 com afastamentos ilegíveis");
    EXPECT_EQ(empregados_.rowAt(1).cells.back(), "Ilegível");
    desk_.person.answers = {Answer::Yes};
    EXPECT_FALSE(empregados_.report());
    EXPECT_THAT(desk_.person.shown.back().detail, ::testing::HasSubstr("Os afastamentos de 002 "));
    EXPECT_FALSE(desk_.files.content.contains("/data/01RelAtivos.txt"));
}

TEST_F(EmpregadosTest, AListChangedElsewhereIsNotOverwritten) {
    addEmployees();
    desk_.file("01CartaPonto") = joinedLines({empregados_.lines()[1].bytes});
    expectRefusal("Dados incorretos!", [&] { return empregados_.change(0, ana()); });
    expectRefusal("Dados incorretos!", [&] { return empregados_.remove(0); });
    Employee second = ana();
    second.code = "002";
    expectRefusal("Dado Incorreto!", [&] { return empregados_.include(second); });
    desk_.files.content.clear();
    second.code = "003";
    expectRefusal("Dados incorretos!", [&] { return empregados_.include(second); });
}

TEST_F(EmpregadosTest, ACommandThatFailsLeavesTheListAsTheScreenShowsIt) {
    addEmployees();
    Employee carla = ana();
    carla.code = "003";
    desk_.file("01CartaPonto") += encode(carla) + "\r\n";  // by another computer
    desk_.files.failOn = {"01PadrHor001.pdx"};
    const std::vector<std::function<bool()>> commands = {
        [&] { return empregados_.remove(0); },
        [&] { return empregados_.removeAll(); },
    };
    for (const auto& command : commands) {
        desk_.person.answers.assign(2, Answer::Yes);
        EXPECT_FALSE(command());
        EXPECT_TRUE(empregados_.failed());
        EXPECT_EQ(empregados_.lines().size(), 2U);
        EXPECT_EQ(desk_.codes(), "001 002 003 ");
    }
    desk_.files.failOn.clear();
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(empregados_.report());
    EXPECT_EQ(empregados_.lines().size(), 2U) << "what is reported is not what is shown";
    empregados_.reloadQuietly();
    EXPECT_EQ(empregados_.lines().size(), 3U);
}

TEST_F(EmpregadosTest, ANewCodeIsBorneByNeitherALineNorAFile) {
    addEmployees();
    desk_.file("01configAf003") = desk_.file("01004-03-2024.bdx") = "of somebody";
    desk_.file("02PadrHor005.pdx") = "of another company";
    empregados_.load();
    EXPECT_EQ(empregados_.proposedCode()->text(), "005");
}

TEST_F(EmpregadosTest, AMemberOfARotationGroupKeepsShiftAndScale) {
    addEmployees();
    desk_.locks.inGroups = {"001"};
    Employee typed = empregados_.lines()[0].record;
    constexpr auto kRefusal =
        "Não Permitido Alteração de TURNO ou ESCALA deste Funcionário pois consta na lista de um "
        "dos Grupos de Escala de Revezamento. Para Alterar, Primeiro Remova-o da Lista de "
        "Revezamento. ";
    typed.shift = "Dois";
    expectRefusal(kRefusal, [&] { return empregados_.change(0, typed); });
    typed.shift = "UNICO";
    typed.scale = "5x1";
    typed.admission = "31/02/2024";
    expectRefusal(kRefusal, [&] { return empregados_.change(0, typed); });
    typed.scale = "Normal";
    typed.admission = "12/03/2024";
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(empregados_.change(0, typed)) << "another spelling of the same shift";
}

TEST_F(EmpregadosTest, AClosedPayrollIsWarnedOf) {
    addEmployees();
    desk_.locks.closed = {"001"};
    Employee typed = ana();
    typed.function = "GERENTE";
    desk_.person.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(empregados_.change(0, typed));
    EXPECT_THAT(
        desk_.person.takeTexts(),
        ElementsAre("Confirma Alteração deste ITEM?",
                    "ATENÇÃO! Não é Recomendável Alterar o Cadastro de Funcionário! Já Foi Gerada "
                    "a Folha de Pagamento para este Funcionário!!",
                    "Confirma Gravar Alteração dos Dados do Funcionário Selecionado?"));
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(empregados_.change(0, typed));
}

TEST_F(EmpregadosTest, AMemberIsDeletedOnlyAfterASecondYes) {
    addEmployees();
    desk_.locks.inGroups = {"001"};
    desk_.person.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(empregados_.remove(0));
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Deseja Excluir o ìtem Selecionado da LISTA DE FUNCIONARIOS?",
                            "Não Permitido Excluir este Funcionário pois O COLABORADOR Consta na "
                            "na Lista de um dos Grupos da Escala de Revezamento. Para Alterar, "
                            "Primeiro Remova-o da Lista de Revezamento. ",
                            "Deseja Excluir Mesmo Assim?"));
    EXPECT_EQ(desk_.codes(), "001 002 ");
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(empregados_.remove(0));
    EXPECT_EQ(desk_.codes(), "002 ");
    EXPECT_THAT(desk_.locks.removed, ElementsAre("001"));
}

TEST_F(EmpregadosTest, DeleteAllAsksTwiceAndLeavesOtherCompaniesAlone) {
    addEmployees();
    for (const char* name :
         {"01configAf001", "01MedHorExtr002", "01001-03-2024.bdx", "01001022024.pdx",
          "01002122023.pdx", "01fp0000203-2024.bdx", "01GRUPO-032024.rdx"})
        desk_.file(name) = "x";
    const std::vector<std::string> staying = {
        "02CartaPonto",        "02PadrHor001.pdx",  "02001022024.pdx",
        "03configAf001",       "03001-03-2024.bdx", "02GRUPO-032024.rdx",
        "01CartaoDePontoTipo", "01PadrHor003.pdx",  "01032024ds.rdx"};
    for (const std::string& name : staying)
        desk_.file(name) = "stays";
    const auto before = desk_.files.content;
    desk_.person.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(empregados_.removeAll());
    EXPECT_EQ(desk_.files.content, before);
    EXPECT_EQ(desk_.person.shown.at(0).title, "EXCLUSÃO");
    EXPECT_EQ(desk_.person.shown.at(1).title, "EXCLUSÃO");
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Deseja Excluir Toda LISTA DE FUNCIONARIOS?",
                            "Tem Certeza de que Deseja Excluir Toda LISTA DE FUNCIONARIOS?"));
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(empregados_.removeAll());
    EXPECT_EQ(desk_.codes(), "");
    for (const std::string& name : staying)
        EXPECT_EQ(desk_.file(name), "stays") << name;
    EXPECT_EQ(desk_.files.content.size(), staying.size() + 2) << "beside list and copy";
}

TEST_F(EmpregadosTest, AFullDiskStopsDeleteAllBeforeAnythingIsGone) {
    addEmployees();
    desk_.file("bk-0115-03-2024-10-00.bkp") = desk_.file("01CartaPonto");
    desk_.files.failWritesOn = {"01CartaPonto"};
    expectRefusal("Dados incorretos!", [&] { return empregados_.removeAll(); });
}

}  // namespace
}  // namespace winvrx
