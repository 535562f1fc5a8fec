#include "output/mirrors/hours_reports.h"

#include "output/mirrors/hours_overview.h"
#include "tests/support/hours_office.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <deque>

namespace winvrx {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

const std::string kForm =
    "Deseja Gerar o Relatório Em EXCEL ou ARQUIVO TEXTO ? Se Desejar em Excel Clique em SIM";
const std::string kClose =
    "Antes de Prosseguir, Salve e Feche as Planilhas de Excel que Estiverem Abertas!";
const std::string kOldExcel =
    "Talves a Versão do EXCEL possa Ocorrer Algum Erro por não ser Compatível com a Aplicação "
    "Desenvolvida para Excel 2007!";
const std::string kNoData = "Não existem dados para Impressão!!!";

struct HoursReportsTest : ::testing::Test {
    testing::HoursOffice office;
    HoursReports& reports = office.reports;
    testing::TestWorkplace& desk = office.desk;

    [[nodiscard]] bool written(const std::string& name) {
        return desk.files.exists("/data/" + name);
    }
};

TEST_F(HoursReportsTest, WritesTextOrSpreadsheetAndOpensIt) {
    desk.person.answers = {Answer::No};
    EXPECT_TRUE(reports.report());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre(kForm));
    EXPECT_THAT(office.editor.opened, ElementsAre("RelHorasExtras"));
    EXPECT_THAT(desk.file("RelHorasExtras"), HasSubstr("Per\xEDodo: 01/03/2024 a 31/03/2024\r\n"));
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(reports.report());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre(kForm, kClose));
    EXPECT_THAT(office.browser.files,
                ElementsAre((std::filesystem::path("/data") / "RelHorasExtras.xlsx").string()));
    ASSERT_EQ(office.spreadsheet.sheets.size(), 3U);
    EXPECT_EQ(office.spreadsheet.sheets[0].rows.size(), 2U * 31U);
    EXPECT_EQ(office.spreadsheet.sheets[1].rows.size(), 2U);
    EXPECT_EQ(office.spreadsheet.sheets[2].rows.size(), 1U);
    EXPECT_TRUE(reports.exportSums("/out/horas.csv"));
    EXPECT_THAT(desk.files.content["/out/horas.csv"],
                HasSubstr("\r\n001;ANA DA CONCEIÇÃO;529.982.247-25;"));
}

/// What stands in the way: nothing is written, or what was written is named.
TEST_F(HoursReportsTest, SaysWhatStandsInTheWay) {
    office.editor.works = office.browser.works = false;
    desk.person.answers = {Answer::No};
    EXPECT_FALSE(reports.report());
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("RelHorasExtras"));
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(reports.report());
    EXPECT_EQ(desk.person.takeTexts().back(), kOldExcel);
    desk.files.content.erase("/data/RelHorasExtras");
    for (const char* name : {"RelHorasExtras", "RelHorasExtras.xlsx", "horas.csv", "RelEspelho"})
        desk.files.failWritesOn.insert(name);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        desk.person.answers = {answer};
        EXPECT_FALSE(reports.report());
        EXPECT_EQ(desk.person.takeTexts().back(), "Dados incorretos!");
    }
    EXPECT_FALSE(reports.exportSums("/out/horas.csv"));
    EXPECT_FALSE(reports.showMirrorText(0));
    EXPECT_FALSE(written("RelHorasExtras"));
    EXPECT_FALSE(written("RelEspelho"));
}

TEST_F(HoursReportsTest, CancellingWritesNothing) {
    const auto cancel = [](int, int) { return false; };
    int employees = 0;
    const auto cancelWorkbook = [&](int, int) { return ++employees <= 2; };
    desk.person.answers = {Answer::No, Answer::Yes, Answer::Yes, Answer::Cancel};
    EXPECT_FALSE(reports.report(cancel));
    EXPECT_FALSE(reports.report(cancel));
    EXPECT_FALSE(reports.report(cancelWorkbook));
    EXPECT_FALSE(reports.report());
    EXPECT_FALSE(reports.exportSums("/out/horas.csv", cancel));
    EXPECT_FALSE(reports.showOverview(cancel));
    EXPECT_FALSE(written("RelHorasExtras") || written("RelHorasExtras.xlsx"));
    EXPECT_TRUE(office.engine.jobs.empty());
}

TEST_F(HoursReportsTest, PeriodsAreRangesOfAtMostAYear) {
    struct Case {
        const char* first;
        const char* last;
        bool taken;
    };
    for (const Case& one :
         {Case{"05/03/2024", "05/03/2024", true}, Case{"01/03/2024", "28/02/2025", true},
          Case{"01/03/2024", "01/03/2025", true}, Case{"01/03/2024", "02/03/2025", false},
          Case{"05/03/2024", "04/03/2024", false}, Case{"31/02/2024", "04/03/2024", false},
          Case{"", "", false}})
        EXPECT_EQ(reports.choosePeriod(one.first, one.last), one.taken)
            << one.first << " " << one.last;
    MonthSettings march = loadMonthSettings(desk.store(), testing::HoursOffice::kMarch);
    march.fixedMonth = false;
    march.closingDay = 21;
    saveMonthSettings(desk.store(), march);
    reports.chooseClosing();
    EXPECT_EQ(reports.period(), (DayPeriod{*parseDate("21/02/2024"), *parseDate("20/03/2024")}));
    reports.chooseMonth();
    EXPECT_EQ(reports.period(), (DayPeriod{*parseDate("01/03/2024"), *parseDate("31/03/2024")}));
    desk.files.content.erase("/data/DataIde.ivc");
    reports.load();
    reports.chooseMonth();
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Informe um Mês de Trabalho!!"));
}

TEST_F(HoursReportsTest, RefusesWhereNothingIsOnRecordOrNobodyIsMeant) {
    ASSERT_TRUE(reports.choosePeriod("01/01/2024", "31/01/2024"));
    desk.person.answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(reports.report());
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre(kForm,
                            "Há Funcionários Inativos antes do Período ou Admitidos depois dele. "
                            "Deseja incluí-los também?",
                            kNoData));
    EXPECT_FALSE(written("RelHorasExtras"));
    EXPECT_FALSE(reports.showMirrorText(0));
    EXPECT_FALSE(reports.showMirrorText(std::nullopt));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre(kNoData, "Selecione um Funcionário na Lista!"));
    reports.list().filterBy(ShiftFilter::Tres);
    EXPECT_FALSE(reports.exportSums("/out/horas.csv"));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Selecione um Funcionário na Lista!"));
    EXPECT_FALSE(desk.files.exists("/out/horas.csv"));
}

TEST_F(HoursReportsTest, LeavesOutWhoIsMissingInTheRotation) {
    Employee ana = reports.list().employees()[0];
    Employee jose = reports.list().employees()[1];
    jose.scale = "12x36";
    desk.file("01CartaPonto") = testing::employeeList({ana, jose});
    reports.load();
    for (const bool inGroup : {false, true}) {
        office.rotation.inGroups = inGroup ? std::set<std::string>{"002"} : std::set<std::string>();
        desk.person.answers = {Answer::Yes};
        EXPECT_TRUE(reports.report());
        EXPECT_EQ(office.spreadsheet.sheets[1].rows.size(), inGroup ? 2U : 1U);
        Texts expected{kForm, kClose};
        if (!inGroup)
            expected.insert(expected.end(),
                            {"Este Funcionário foi definido como ESCALA DE REVEZAMENTO!!!",
                             "Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA DE "
                             "REVEZAMENTO!!!"});
        EXPECT_EQ(desk.person.takeTexts(), expected);
    }
}

TEST_F(HoursReportsTest, TheOverviewIsSortedByWhatNeedsAttention) {
    EXPECT_TRUE(reports.showOverview());
    ASSERT_EQ(office.engine.jobs.size(), 1U);
    const auto& job = office.engine.jobs.front();
    EXPECT_EQ(job.request.layoutName, "resumohoras.rpt");
    ASSERT_EQ(job.cards.at(0).size(), 2U);
    desk.session.folder = DataFolder('D', "/data");
    EXPECT_FALSE(reports.showOverview());
    EXPECT_EQ(desk.person.takeTexts().back(),
              "Diretório Inválido p/ Impressão! Transfira os dados do Diretório atual para o "
              "Diretório 'C'.");
    desk.person.answers = {Answer::No};
    EXPECT_TRUE(reports.report()) << "a text is no print";

    using namespace std::chrono_literals;
    std::vector<OverviewLine> lines = {
        {"001", "ANA", 160h, 9h, 0h}, {"002", "BIA", 80h, 0h, 4h}, {"003", "CAIO", 100h, 3h, 4h}};
    sortByAttention(lines);
    const auto pages = overviewPages(
        {{}, {*parseDate("01/03/2024"), *parseDate("31/03/2024")}, TotalsFormat::HoursAndMinutes},
        lines);
    ASSERT_EQ(pages.size(), 1U);
    const auto tail = [&](std::size_t row) {
        return Texts(pages[0][row].begin() + 5, pages[0][row].end());
    };
    EXPECT_EQ(tail(0), (Texts{"003", "CAIO", "04:00", "03:00", "100:00", "444", "333", "625"}));
    EXPECT_EQ(tail(1), (Texts{"002", "BIA", "04:00", "00:00", "80:00", "444", "0", "500"}));
    EXPECT_EQ(tail(2), (Texts{"001", "ANA", "00:00", "09:00", "160:00", "0", "1000", "1000"}));
    EXPECT_EQ(overviewPages({{}, {}, {}}, std::vector<OverviewLine>(33)).size(), 2U);
}

/// Who has no record is named; the blank sheet asks for none, and has no times of the record.
TEST_F(HoursReportsTest, PrintsMirrorsOfThoseOnRecordAndABlankSheetOfAnyone) {
    const std::string all =
        "Confirma a Impressão do ESPELHO DE PONTO para Todos os Funcionário Selecionado?";
    const std::string manual =
        "Confirma a Impressão da FOLHA MANUAL DE PONTO para o Funcionário Selecionado?";
    desk.person.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    EXPECT_TRUE(reports.printMirrors({}, {}));
    EXPECT_EQ(desk.person.shown.back().detail, "JOSÉ DE ALENCAR GONÇALVES FILH");
    EXPECT_TRUE(reports.printManualSheet(1, {}, {}));
    EXPECT_TRUE(reports.printManualSheet(0, {}, {}));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre(all, kNoData, manual, manual));
    ASSERT_EQ(office.engine.jobs.size(), 3U);
    for (const auto& job : office.engine.jobs) {
        const bool blank = job.request.layoutName == "espelho.rpt";
        EXPECT_EQ(job.request.layoutName, blank ? "espelho.rpt" : "espelhos.rpt");
        ASSERT_EQ(job.cards.size(), 1U);
        EXPECT_EQ(job.cards[0].size(), 31U);
        for (const ReportRow& row : job.cards[0])
            EXPECT_EQ(row.size(), job.request.columns.size());
        EXPECT_EQ(std::ranges::count(job.cards[0][3], "Falta Injustificada"), blank ? 0 : 1);
        EXPECT_EQ(std::ranges::count(job.cards[0][0], "18:00"), blank ? 0 : 1);
    }
}

TEST_F(HoursReportsTest, MirrorsOfALongerRangeHaveAPageAMonth) {
    ASSERT_TRUE(reports.choosePeriod("15/02/2024", "20/03/2024"));
    reports.list().filterBy(ShiftFilter::Unico);
    PrintChoices toPdf{.output = ReportOutput::PdfFile};
    std::string proposed;
    const PrintRun run{.choosePdf = [&](const std::string& name) {
        proposed = name;
        return "/out/" + name;
    }};
    desk.person.answers = {Answer::Yes, Answer::Yes, Answer::No};
    EXPECT_TRUE(reports.printMirrors(toPdf, run));
    EXPECT_EQ(proposed, "ESPELHO DE PONTO 001 ANA DA CONCEIÇÃO 15-02-2024 a 20-03-2024.pdf");
    ASSERT_EQ(office.engine.jobs.size(), 1U);
    ASSERT_EQ(office.engine.jobs[0].cards.size(), 2U);
    EXPECT_EQ(office.engine.jobs[0].cards[0].size(), 15U);
    EXPECT_EQ(office.engine.jobs[0].cards[1].size(), 20U);
}

TEST_F(HoursReportsTest, MirrorsAreRefusedWithoutConsentDriveGroupOrData) {
    const auto print = [&](Answer answer) {
        desk.person.answers = {answer};
        return reports.printMirrors({}, {});
    };
    EXPECT_FALSE(print(Answer::No));
    reports.list().filterBy(ShiftFilter::Dois);
    EXPECT_FALSE(print(Answer::Yes));
    EXPECT_EQ(desk.person.takeTexts().back(), kNoData);
    desk.session.folder = DataFolder('D', "/data");
    EXPECT_FALSE(print(Answer::Yes));
    EXPECT_THAT(desk.person.takeTexts().back(), HasSubstr("Diretório Inválido p/ Impressão!"));
    EXPECT_TRUE(office.engine.jobs.empty());
    desk.session.folder = DataFolder('C', "/data");
    reports.list().filterBy(ShiftFilter::Unico);
    office.engine.outcomes = {testing::RecordingEngine::Outcome::NoPrinter};
    EXPECT_FALSE(print(Answer::Yes));
    EXPECT_THAT(desk.person.takeTexts().back(), HasSubstr("não há Impressoras Instalada no PC!"));
    Employee ana = reports.list().employees()[0];
    ana.scale = "12x36";
    desk.file("01CartaPonto") = testing::employeeList({ana});
    reports.load();
    office.engine.jobs.clear();
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(reports.printManualSheet(0, {}, {}));
    EXPECT_EQ(desk.person.takeTexts().back(),
              "Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA DE REVEZAMENTO!!!");
    EXPECT_TRUE(office.engine.jobs.empty());
}

/// A declined side ends the run after the side in hand.
TEST_F(HoursReportsTest, CardSidesArePromptedOneByOne) {
    const auto ready = [](const char* number) {
        return std::string("PRONTO PARA IMPRIMIR A ") + number +
               "º QUINZENA??          Coloque o Cartão na Impressora e Clique em <SIM> para "
               "Prosseguir.. ";
    };
    reports.list().filterBy(ShiftFilter::Unico);
    struct Case {
        std::deque<Answer> answers;
        std::vector<SheetSides> printed;
        Texts told;
    };
    using enum SheetSides;
    const std::string half = "1 cartão ficou impresso somente na 1º QUINZENA.";
    for (const Case& one :
         {Case{{Answer::No}, {}, {ready("1")}},
          Case{{Answer::Yes, Answer::No}, {First}, {ready("1"), ready("2"), half}},
          Case{{Answer::Yes, Answer::Yes}, {First, Second}, {ready("1"), ready("2")}}}) {
        office.engine.jobs.clear();
        desk.person.answers = {one.answers.begin(), one.answers.end()};
        std::string line;
        EXPECT_EQ(reports.printSides({.output = ReportOutput::Printer}, {},
                                     [&](const std::string& text) { line = text; }),
                  one.printed.size() == 2);
        EXPECT_EQ(line, "Imprimindo Cartão do Funcionário:  ANA DA CONCEIÇÃO");
        EXPECT_EQ(desk.person.takeTexts(), one.told);
        std::vector<SheetSides> sides;
        for (const auto& job : office.engine.jobs) {
            sides.push_back(job.request.sides);
            EXPECT_EQ(job.request.layoutName, "espelhosladopontocenter.rpt");
            ASSERT_EQ(job.cards.at(0).size(), 31U);
        }
        EXPECT_EQ(sides, one.printed);
    }
    desk.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_FALSE(reports.printSides({.output = ReportOutput::Printer},
                                    {.progress = [](int, int) { return false; }}))
        << "cancelled behind a whole card";
    EXPECT_EQ(desk.person.takeTexts(), (Texts{ready("1"), ready("2")}));
    EXPECT_TRUE(reports.printSides({}, {}));
    EXPECT_EQ(office.engine.jobs.back().request.sides, Both);
}

}  // namespace
}  // namespace winvrx
