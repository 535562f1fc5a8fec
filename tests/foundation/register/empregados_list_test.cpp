// Order, transfer, reports and export of the employee list.
#include "foundation/values/text.h"
#include "tests/support/employee_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::EmployeeDesk;

const CompanyCode kOther = *CompanyCode::parse("02");

class EmpregadosListTest : public ::testing::Test {
  protected:
    EmpregadosListTest() { registerCompanies({"01", "02"}); }

    void registerCompanies(const std::vector<std::string>& codes) {
        desk_.file("01Empresa").clear();
        Company company;
        for (const std::string& code : codes) {
            company.code = code;
            desk_.file("01Empresa") += encode(company) + "\r\n";
        }
    }

    static Employee employee(const char* code, const char* name,
                             const char* admission = "12/03/2024") {
        return testing::employee(code, name, {.admission = admission});
    }

    template <typename Command>
    void expectRefusal(const std::string& title, const std::string& text, Command&& command) {
        const auto before = desk_.files.content;
        desk_.person.answers.assign(3, Answer::Yes);
        EXPECT_FALSE(command()) << text;
        ASSERT_FALSE(desk_.person.shown.empty()) << text;
        EXPECT_EQ(desk_.person.shown.back().title, title);
        EXPECT_EQ(desk_.person.shown.back().text, text) << desk_.person.shown.back().detail;
        EXPECT_EQ(desk_.files.content, before) << text;
        desk_.person.shown.clear();
    }

    EmployeeDesk desk_;
    Empregados& list_ = desk_.empregados;
};

TEST_F(EmpregadosListTest, NamesAreSortedAsInADictionary) {
    desk_.record("01",
                 {employee("001", "Zélia"), employee("002", "ÁLVARO"), employee("003", "alvaro"),
                  employee("004", "D'ÁVILA"), employee("005", "Ana"), employee("006", "Çelia"),
                  employee("007", "ALVARO")});
    std::vector<std::string> waited;
    list_.tellWaiting([&](std::string_view text) { waited.emplace_back(text); });
    EXPECT_FALSE(list_.sortByName());
    EXPECT_EQ(desk_.codes(), "001 002 003 004 005 006 007 ");
    desk_.person.takeTexts();
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(list_.sortByName());
    EXPECT_EQ(desk_.person.shown[0].title, "ORDEM ALFABETICA");
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma Ordenação Alfabetica dos ITENS?"));
    EXPECT_THAT(waited, ElementsAre("Aguarde ...."));
    EXPECT_EQ(desk_.codes(), "003 007 002 005 006 004 001 ");
}

TEST_F(EmpregadosListTest, AdmissionsAreSortedByTheirDay) {
    desk_.record("01", {employee("001", "A", "02/01/2024"), employee("002", "B", "31/12/1999"),
                        employee("003", "C", "01/02/2024"), employee("004", "D", "02/01/2024")});
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(list_.sortByAdmission());
    EXPECT_EQ(desk_.person.shown[0].title, "ORDEM POR ADIMISSAO");
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Confirma Ordenação por Data de Adimissão dos ITENS?"));
    EXPECT_EQ(desk_.codes(), "002 001 004 003 ");
}

TEST_F(EmpregadosListTest, AnUnreadableAdmissionStopsTheSort) {
    desk_.record("01", {employee("001", "A"), employee("002", "B", "31/02/2024")});
    expectRefusal("ORDEM POR ADIMISSAO", "ERRO! Dados incorretos no ITENS Selecionado!",
                  [&] { return list_.sortByAdmission(); });
}

TEST_F(EmpregadosListTest, MovesToPlacesOfTheListOnly) {
    desk_.record("01", {employee("001", "A"), employee("002", "B"), employee("003", "C")});
    struct Case {
        const char* place;
        const char* refusal;
    };
    for (const Case& c : {
             Case{"", "O Numero da Posição Inválido!"},
             {"dois", "O Numero da Posição Inválido!"},
             {"1,5", "O Numero da Posição Inválido!"},
             {"99999999999999999999", "O Numero da Posição Inválido!"},
             {"0",
              "O Numero da Posição não deve ser Igual ou Menor que 0 (Quantidade de Itens na "
              "Lista)!"},
             {"-1",
              "O Numero da Posição não deve ser Igual ou Menor que 0 (Quantidade de Itens na "
              "Lista)!"},
             {"4", "O Numero da Posição não deve ser Maior do que a Quantidade de Itens na Lista!"},
         })
        expectRefusal("MOVER", c.refusal, [&] { return list_.moveTo(0, c.place); });
    EXPECT_TRUE(list_.moveTo(0, "3"));
    EXPECT_EQ(desk_.codes(), "002 003 001 ");
    EXPECT_TRUE(list_.moveTo(2, " 2 "));
    EXPECT_EQ(desk_.codes(), "002 001 003 ");
}

TEST_F(EmpregadosListTest, TransferMovesTheLineAndEveryFile) {
    desk_.record("02", {employee("001", "CARLA")});
    desk_.record("01", {employee("001", "ANA"), employee("002", "BIA")});
    desk_.file("01CartaPonto").insert(697, "TAIL");
    list_.load();
    for (const char* name : {"01PadrHor001.pdx", "01MedHorExtr001", "01configAf001",
                             "01001032024.pdx", "01fp0000103-2024.bdx", "01PadrHor002.pdx"})
        desk_.file(name) = name;
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(list_.transfer(0, kOther));
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma Alteração deste ITEM?"));
    EXPECT_EQ(desk_.codes("01"), "002 ");
    EXPECT_EQ(desk_.codes("02"), "001 002 ") << "001 is taken there, 002 is the lowest free code";
    EXPECT_TRUE(desk_.file("02CartaPonto").ends_with("TAIL\r\n"));
    EXPECT_EQ(desk_.file("02PadrHor002.pdx"), "01PadrHor001.pdx");
    EXPECT_EQ(desk_.file("02MedHorExtr002"), "01MedHorExtr001");
    EXPECT_EQ(desk_.file("02configAf002"), "01configAf001");
    EXPECT_EQ(desk_.file("02002032024.pdx"), "01001032024.pdx");
    EXPECT_EQ(desk_.file("02fp0000203-2024.bdx"), "01fp0000103-2024.bdx");
    for (const char* gone : {"01PadrHor001.pdx", "01configAf001", "01fp0000103-2024.bdx"})
        EXPECT_FALSE(desk_.files.exists(std::string("/data/") + gone)) << gone;
    EXPECT_TRUE(desk_.files.exists("/data/01PadrHor002.pdx"));
    EXPECT_TRUE(desk_.files.exists("/data/bk-0215-03-2024-10-00.bkp"));
}

TEST_F(EmpregadosListTest, TransferLeavesWhatLiesThereUnderTheCode) {
    const auto transfer = [&] {
        desk_.file("02CartaPonto") = "0?1 torn\r\n";
        desk_.record("01", {employee("001", "ANA")});
        desk_.file("01PadrHor001.pdx") = "of ANA";
        desk_.person.answers = {Answer::Yes};
        EXPECT_TRUE(list_.transfer(0, kOther)) << desk_.person.shown.back().detail;
    };
    desk_.file("02PadrHor001.pdx") = "of the torn line";
    desk_.file("02002-03-2024.bdx") = "of another one";
    transfer();
    EXPECT_EQ(desk_.codes("02"), "0?1 003 ");
    EXPECT_EQ(desk_.file("02PadrHor001.pdx"), "of the torn line");
    EXPECT_EQ(desk_.file("02PadrHor003.pdx"), "of ANA");
    desk_.file("01Transf001") = "02\r\n001\r\n";
    transfer();
    EXPECT_EQ(desk_.codes("02"), "0?1 001 ") << "under the files that a move cut short has left";
    EXPECT_FALSE(desk_.files.exists("/data/01Transf001"));
}

TEST_F(EmpregadosListTest, TransferIsRefused) {
    Employee ana = employee("001", "ANA");
    ana.taxId = "529.982.247-25";
    Employee married = employee("009", "ANA PRADO");
    married.taxId = "52998224725";
    desk_.record("02", {married, employee("010", "Bía")});
    desk_.record("01", {ana, employee("002", "BIA"), employee("003", "CARLA")});
    desk_.file("01003-03-2024.bdx") = "punches";
    const auto transfer = [&](std::size_t position) {
        return [this, position] { return list_.transfer(position, kOther); };
    };
    constexpr auto kThere = "Este Funcionário Já Está Cadastrado na Outra Empresa!! ";
    expectRefusal("Transferência", kThere, transfer(0));
    expectRefusal("Transferência", kThere, transfer(1));
    desk_.file("02CartaPonto") += encode(ana) + "\r\n";
    expectRefusal("Transferência", kThere, transfer(0));
    expectRefusal("Transferência",
                  "Este Funcionário Possui Dados de Ponto e não poderá ser Transferido para Outra "
                  "Empresa!! ",
                  transfer(2));
    desk_.files.remove("/data/01003-03-2024.bdx");
    registerCompanies({"01", "03"});
    expectRefusal("Erro", "Dados incorretos!", transfer(2));
}

TEST_F(EmpregadosListTest, AMarkedTransferIsFinished) {
    const Employee ana = employee("001", "ANA");
    registerCompanies({"01", "02", "03"});
    desk_.record("02", {employee("007", "ANA")});
    desk_.record("01", {ana, employee("002", "BIA")});
    desk_.file("01Transf001") = "02\r\n007\r\n";
    expectRefusal("Erro", "Dados incorretos!",
                  [&] { return list_.transfer(0, *CompanyCode::parse("03")); });
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(list_.transfer(0, kOther)) << desk_.person.shown.back().text;
    EXPECT_EQ(desk_.codes("01"), "002 ");
    EXPECT_EQ(desk_.codes("02"), "007 ");
    EXPECT_FALSE(desk_.files.exists("/data/01Transf001"));
}

TEST_F(EmpregadosListTest, AFullDiskLeavesBothCompaniesAsTheyWere) {
    desk_.record("02", {employee("001", "CARLA")});
    desk_.record("01", {employee("002", "ANA")});
    for (const char* company : {"01", "02"})
        desk_.file("bk-" + std::string(company) + "15-03-2024-10-00.bkp") =
            desk_.file(std::string(company) + "CartaPonto");
    for (const char* full : {"01CartaPonto", "bk-0215-03-2024-10-00.bkp"}) {
        desk_.files.failWritesOn = {full};
        expectRefusal("Erro", "Dados incorretos!", [&] { return list_.transfer(0, kOther); });
    }
}

TEST_F(EmpregadosListTest, ReportsFollowTheLeaveFiles) {
    Employee ana = employee("001", "ANA MARIA DA CONCEIÇÃO D'ÁVILA", "12/03/2019");
    ana.function = "AUXILIAR DE ESCRITÓR";
    desk_.record("01", {ana, employee("002", "BIA"), employee("003", "CARLA")});
    desk_.file("01configAf001") = "006 FERIAS\r\n**** 10/02/2024\r\n";
    desk_.file("01configAf002") = "**** \r\n";
    desk_.file("01configAf003") = "**** 31/02/2024\r\n";
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(list_.report());
    EXPECT_EQ(desk_.person.shown[0].title, "ATIVOS E INATIVOS");
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Confirma Geração do Relatório de Colaboradores Ativos e Inativos?"));
    EXPECT_THAT(desk_.editor.opened, ElementsAre("01RelAtivos.txt", "01RelInativos.txt"));
    EXPECT_EQ(decodeWindows1252(desk_.file("01RelAtivos.txt")),
              "(Usar Fonte: Courier New, Tamanho: 10)\r\n"
              " RELATÓRIO DE COLABORADORES ATIVOS - 15/03/2024\r\n"
              "----------------------------------+--------------------+----------+\r\n"
              " Nome do Funcionário              | Função             | Admissão |\r\n"
              "----------------------------------+--------------------+----------+\r\n"
              "BIA                               |                    |12/03/2024|\r\n"
              "CARLA                             |                    |12/03/2024|\r\n"
              "----------------------------------+--------------------+----------+\r\n");
    EXPECT_EQ(decodeWindows1252(desk_.file("01RelInativos.txt")),
              "(Usar Fonte: Courier New, Tamanho: 10)\r\n"
              " RELATÓRIO DE COLABORADORES INATIVOS - 15/03/2024\r\n"
              "----------------------------------+--------------------+----------+----------+\r\n"
              " Nome do Funcionário              | Função             | Admissão | Demissão |\r\n"
              "----------------------------------+--------------------+----------+----------+\r\n"
              "ANA MARIA DA CONCEIÇÃO D'ÁVILA    |AUXILIAR DE ESCRITÓR|12/03/2019|10/02/2024|\r\n"
              "----------------------------------+--------------------+----------+----------+\r\n");
    desk_.editor.works = false;
    desk_.person.answers = {Answer::Yes};
    EXPECT_FALSE(list_.report());
    EXPECT_EQ(desk_.person.shown.back().text, "Ocorreu Erro");
}

TEST_F(EmpregadosListTest, ADamagedLineDoesNotStopTheReports) {
    std::string strange = encode(employee("002", "BIA"));
    strange[6] = '\x01';
    strange[7] = '\x81';
    desk_.file("01CartaPonto") =
        joinedLines({encode(employee("001", "ANA")), strange, "torn off", ""});
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(list_.report()) << desk_.person.shown.back().detail;
    const std::vector<std::string> lines = splitLines(desk_.file("01RelAtivos.txt"));
    ASSERT_EQ(lines.size(), 8U) << "one line an employee";
    EXPECT_TRUE(decodeWindows1252(lines[5]).starts_with("ANA "));
    EXPECT_TRUE(decodeWindows1252(lines[6]).starts_with("BI·· "));
}

TEST_F(EmpregadosListTest, WithoutACompanyNoListCommandBegins) {
    desk_.session.company.reset();
    list_.load();
    const std::vector<std::function<bool()>> commands = {
        [&] { return list_.sortByName(); }, [&] { return list_.sortByAdmission(); },
        [&] { return list_.removeAll(); }, [&] { return list_.report(); },
        [&] { return list_.exportTo("/out/x.csv"); }};
    for (const auto& command : commands)
        expectRefusal("Aviso", "Cadastre Primeiro Uma Empresa!!", command);
}

TEST_F(EmpregadosListTest, ExportsByTheNameOfTheFile) {
    desk_.record("01", {employee("001", "ANA \"NINA\"; SILVA"), employee("002", "BIA")});
    desk_.file("01configAf002") = "**** 10/02/2024\r\n";
    list_.load();
    EXPECT_TRUE(list_.exportTo("/out/lista.XLSX"));
    EXPECT_EQ(desk_.files.content["/out/lista.XLSX"], "workbook");
    const Sheet& sheet = desk_.spreadsheet.sheets.at(0);
    EXPECT_EQ(sheet.columns.front().title, "Código");
    EXPECT_EQ(sheet.columns.back().title, "Situação");
    ASSERT_EQ(sheet.rows.size(), 2U);
    EXPECT_EQ(sheet.rows[0].back(), SheetCell("Ativo"));
    EXPECT_EQ(sheet.rows[1].back(), SheetCell("Inativo"));
    EXPECT_TRUE(list_.exportTo("/out/lista.csv"));
    const std::string& csv = desk_.files.content["/out/lista.csv"];
    EXPECT_TRUE(
        csv.starts_with("\xEF\xBB\xBF"
                        "Código;Nome;Função;CBO;"))
        << csv.substr(0, 40);
    EXPECT_NE(csv.find("\r\n001;\"ANA \"\"NINA\"\"; SILVA\";"), std::string::npos) << csv;
}

}  // namespace
}  // namespace winvrx
