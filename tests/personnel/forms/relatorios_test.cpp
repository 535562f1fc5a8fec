#include "personnel/forms/relatorios.h"

#include "foundation/values/text.h"
#include "personnel/contract/contract_file.h"
#include "personnel/forms/form_page.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace winvrx {
namespace {

using namespace testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Texts = std::vector<std::string>;

constexpr auto kNoForm = "Pesquise e Selecione um Relatório na Lista! ";
constexpr auto kNoEmployee = "Pesquise e Selecione um Funcionário na Lista! ";
constexpr auto kInactive = "Este Funcionário Encontra-se Inativo!!";
constexpr auto kNoContract = "Não Existe Contrato de Trabalho Gerado para este Funcionário!!";
constexpr auto kWrongDrive =
    "Diretório Inválido p/ Impressão! Transfira os dados do diretório atual para o Diretório 'C'.";

TEST(FormCatalogue, HoldsItsLinesKeysAndKeywords) {
    Texts lines;
    Texts layouts;
    for (const CatalogueForm& form : formCatalogue()) {
        lines.push_back(form.line());
        layouts.push_back(layoutOf(form));
        EXPECT_EQ(characterCount(lines.back()), 63U) << lines.back();
    }
    for (const char* given : {"02-AVISO DE ADVERTÊNCIA                                       +",
                              "03-AVISO DE SUSPENSÃO DO EMPREGADO                            +",
                              "13-FICHA DE REGISTRO DE EMPREGADO                             +",
                              "15-FICHA DE SOLICITAÇÃO DE EMPREGO                            -",
                              "17-LISTA DOCUMENTOS PARA ADMISSÃO                             -",
                              "25-RECIBO DE RECEBIMENTO E ENTREGA DE CARTEIRA DE TRABALHO    +",
                              "30-TERMO RESPONSABILIDADE SALÁRIO FAMÍLIA                     +",
                              "31-AUTORIZAÇÃO DE SAÍDA EXPEDIENTE                            +",
                              "35-FOLHA DE PONTO MANUAL                                      +"})
        EXPECT_THAT(lines, Contains(given));
    EXPECT_THAT(
        layouts,
        ElementsAre("01-AU.RPT", "02-AV.RPT", "03-AV.RPT", "04-AV.RPT", "05-AV.RPT", "06-AV.RPT",
                    "07-CO.RPT", "08-CO.RPT", "09-DE.RPT", "10-DE.RPT", "11-ES.RPT", "12-FI.RPT",
                    "13-FI.RPT", "14-FI.RPT", "15-FI.RPT", "16-FO.RPT", "17-LI.RPT", "18-PE.RPT",
                    "19-QU.RPT", "20-RE.RPT", "21-RE.RPT", "22-RE.RPT", "23-RE.RPT", "24-TE.RPT",
                    "25-RE.RPT", "26-RE.RPT", "27-SO.RPT", "28-AC.RPT", "29-AC.RPT", "30-TE.RPT",
                    "31-AU.RPT", "32-CA.RPT", "33-FI.RPT", "34-CA.RPT", "35-FO.RPT"));
    for (const std::string_view keyword : kFormKeywords)
        EXPECT_TRUE(std::ranges::any_of(lines, [&](const std::string& line) {
            return line.find(keyword) != std::string::npos;
        })) << keyword;
    EXPECT_EQ(layoutOf(formCatalogue()[12], FormFace::Front), "13-FIfre.RPT");
    EXPECT_EQ(layoutOf(formCatalogue()[12], FormFace::Back), "13-FIver.RPT");
    EXPECT_EQ(layoutOf(formCatalogue()[1], FormFace::Back), "02-AV.RPT");
}

/// An office of three employees with a contract each, and one who is inactive.
struct RelatoriosDesk : ::testing::Test, TestWorkplace {
    RecordingEngine engine;
    Relatorios reports{at, engine};

    void SetUp() override {
        std::vector<Employee> people;
        for (const char* code : {"001", "002", "003", "004"}) {
            people.push_back(
                employee(code, std::string("NOME ") + code, {.admission = "01/02/2020"}));
            file(contractFileName({*session.company, *EmployeeCode::parse(code)})) = "x\r\n";
        }
        file("01Empresa") = "01 PADARIA";
        file("01CartaPonto") = employeeList(people);
        file("01configAf004") = leaveBytes({}, "20/03/2024");
        reports.load();
    }

    void choose(int number) {
        reports.narrowTo({});
        reports.choose(static_cast<std::size_t>(number - 1));
    }
    void removeContract(const char* code) {
        files.content.erase("/data/" +
                            contractFileName({*session.company, *EmployeeCode::parse(code)}));
    }
    /// What a column says on a page of the last job.
    std::string said(std::size_t page, const std::string& column, std::size_t row = 0) {
        const auto& columns = engine.jobs.back().request.columns;
        const auto at = std::ranges::find(columns, column) - columns.begin();
        return engine.jobs.back().cards.at(page).at(row).at(static_cast<std::size_t>(at));
    }
};

TEST_F(RelatoriosDesk, KeywordsAreWholeWordsOfTheTitles) {
    const auto numbers = [&](std::string_view keyword) {
        reports.narrowTo(keyword);
        std::vector<int> found;
        for (const CatalogueForm& form : reports.forms())
            found.push_back(form.number);
        return found;
    };
    for (const std::string_view keyword : kFormKeywords)
        EXPECT_THAT(numbers(keyword), ::testing::Not(IsEmpty())) << keyword;
    EXPECT_THAT(numbers("EMPREGADOR"), ElementsAre(6));
    EXPECT_THAT(numbers("PRAZO "), ElementsAre(8));
    EXPECT_THAT(numbers("FERIAS"), ElementsAre(5, 26));
    EXPECT_THAT(numbers("ficha"), ElementsAre(12, 13, 14, 15, 33));
    EXPECT_EQ(numbers("").size(), 35U);
    choose(13);
    reports.narrowTo("FICHA");
    EXPECT_EQ(reports.chosen()->number, 13);
    reports.narrowTo("VALE");
    EXPECT_EQ(reports.chosen(), nullptr);
}

TEST_F(RelatoriosDesk, RefusesInOrderAndPrintsNothing) {
    struct Case {
        const char* what;
        int form;
        std::optional<std::size_t> position;
        Texts told;
    };
    removeContract("002");
    removeContract("004");
    const Case cases[] = {
        {"nothing chosen", 0, std::nullopt, {kNoForm}},
        {"no employee", 2, std::nullopt, {kNoEmployee}},
        {"an employee not shown", 2, 9, {kNoEmployee}},
        {"inactive before contract", 2, 3, {kInactive}},
        {"no contract", 2, 1, {kNoContract}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        one.form > 0 ? choose(one.form) : reports.choose(std::nullopt);
        EXPECT_FALSE(reports.printOne(one.position, {}));
        EXPECT_EQ(person.takeTexts(), one.told);
    }
    reports.choose(std::nullopt);
    EXPECT_FALSE(reports.printAll({}));
    EXPECT_EQ(person.takeTexts(), Texts{kNoForm});
    choose(2);
    reports.list().searchFor("ninguém");
    EXPECT_FALSE(reports.printAll({}));
    EXPECT_EQ(person.takeTexts(), Texts{kNoEmployee});
    EXPECT_THAT(engine.jobs, IsEmpty());
}

TEST_F(RelatoriosDesk, FillsAFormForOneForAllAndForNobody) {
    file("DataIde.ivc") = "02-2024\r\nTodos\r\n";
    reports.load();
    choose(13);
    ASSERT_TRUE(reports.printOne(1, {.face = FormFace::Back}));
    EXPECT_EQ(engine.jobs.back().request.layoutName, "13-FIver.RPT");
    EXPECT_EQ(engine.jobs.back().request.pdfPath, "13-FI-002.pdf");
    EXPECT_EQ(said(0, "nome"), "NOME 002");
    EXPECT_EQ(said(0, "razao"), "PADARIA");
    EXPECT_EQ(said(0, "hoje"), "15 de março de 2024");
    EXPECT_EQ(said(0, "dia", 28) + said(0, "semana", 28), "29qui");
    EXPECT_EQ(engine.jobs.back().cards.at(0).size(), 29U);

    // Whoever may have no papers is named once, with the others of his kind.
    removeContract("002");
    removeContract("003");
    FormRun toFile{.output = ReportOutput::PdfFile,
                   .choosePdf = [](const std::string& name) { return "/tmp/" + name; }};
    choose(2);
    ASSERT_TRUE(reports.printAll(toFile));
    EXPECT_EQ(person.shown.front().detail, "002 NOME 002, 003 NOME 003");
    EXPECT_EQ(person.takeTexts(), (Texts{kNoContract, kInactive}));
    EXPECT_EQ(engine.jobs.back().request.pdfPath, "/tmp/02-AV-001.pdf");

    choose(12);
    for (const bool all : {false, true}) {
        ASSERT_TRUE(all ? reports.printAll(toFile) : reports.printOne(std::nullopt, toFile));
        EXPECT_EQ(engine.jobs.back().request.pdfPath, "/tmp/12-FI.pdf");
        EXPECT_EQ(said(0, "nome") + said(0, "descanso"), "");
    }
    EXPECT_EQ(engine.jobs.size(), 4U);
}

TEST_F(RelatoriosDesk, AsksBeforeItPrintsManyAndKeepsToDriveC) {
    file("01configAf004") = leaveBytes({});
    choose(2);
    const FormRun toPrinter{.output = ReportOutput::Printer};
    person.answers = {Answer::No};
    EXPECT_FALSE(reports.printAll(toPrinter));
    EXPECT_EQ(person.takeTexts(), Texts{"Confirma a Impressão de 4 folhas?"});
    EXPECT_THAT(engine.jobs, IsEmpty());
    person.answers = {Answer::Yes};
    EXPECT_TRUE(reports.printAll(toPrinter));
    EXPECT_EQ(engine.jobs.back().cards.size(), 4U);
    (void)person.takeTexts();
    FormRun cancelled{.output = ReportOutput::PdfFile,
                      .choosePdf = [](const std::string&) { return std::string(); }};
    EXPECT_FALSE(reports.printOne(0, cancelled));
    EXPECT_THAT(person.takeTexts(), IsEmpty());

    session.folder = DataFolder('D', "/data");
    EXPECT_FALSE(reports.printOne(0, toPrinter));
    EXPECT_FALSE(reports.printAll(toPrinter));
    EXPECT_EQ(person.takeTexts(), (Texts{kWrongDrive, kWrongDrive}));
    EXPECT_EQ(engine.jobs.size(), 1U);
}

}  // namespace
}  // namespace winvrx
