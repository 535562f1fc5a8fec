#include "output/cards/cartao.h"

#include "tests/support/printing_screen.h"
#include "timecard/month/overtime_record.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::CartaoOpened;
using testing::CartaoTest;
using testing::employee;
using testing::employeeList;
using Outcome = testing::RecordingEngine::Outcome;
using testing::Texts;

constexpr WorkMonth kMarch = std::chrono::year(2024) / 3;

const std::string kConfirmOne = "Este Comando Irá Imprimir o Item Selecionado. Deseja Prosseguir?";
const std::string kConfirmJose = "Confirma a Impressão do Cartão do JOSÉ DA SILVA ? ";
const std::string kConfirmAna = "Confirma a Impressão do Cartão do ANA PAULA ? ";
const std::string kConfirmRui = "Confirma a Impressão do Cartão do RUI BARBOSA ? ";
const std::string kCancelOthers = "Deseja Cancelar as demais Impressões? ";
const std::string kWrongDrive =
    "Diretório Inválido p/ Impressão! Transfira os dados do diretório atual para o Diretório 'C'.";
const std::string kFailed = "Erro na Impressão do Relatório.";
const std::string kNoEngine =
    "Erro na Instalação do Programa!\n* Confirme a Instalação do CrystalReport;";
const std::string kPrinterGone = "ERRO AO IMPRIMIR";
const std::string kNoPrinter =
    "ERRO NA IMPRESSÃO DO RELATÓRIO - Isto ocorre quando não há Impressoras Instalada no PC!";

TEST_F(CartaoOpened, ListFollowsShiftAndSearch) {
    const auto names = [this] {
        Texts names;
        for (const std::size_t position : screen.list().shown())
            names.push_back(screen.list().employees()[position].name);
        return names;
    };
    EXPECT_EQ(names(), (Texts{"JOSÉ DA SILVA", "ANA PAULA", "RUI BARBOSA"}));
    screen.list().filterBy(ShiftFilter::Dois);
    EXPECT_EQ(names(), Texts{"ANA PAULA"});
    screen.list().filterBy(ShiftFilter::Todos);
    screen.list().searchFor("jose");
    EXPECT_EQ(names(), Texts{"JOSÉ DA SILVA"});
    screen.load();
    EXPECT_EQ(names(), Texts{"JOSÉ DA SILVA"});
    screen.list().searchFor("003");
    EXPECT_EQ(names(), Texts{"RUI BARBOSA"});
    EXPECT_TRUE(screen.printAll({}));
    EXPECT_EQ(printed(), Texts{"RUI BARBOSA"});
}

TEST_F(CartaoTest, PrintAllAsksOnceWhetherThoseOutsideTheMonthAreMeant) {
    struct Case {
        const char* anaInactiveSince;
        const char* ruiAdmitted;
        Answer answer;
        Texts asked;
        Texts printed;
    };
    const std::string ask =
        "Há Funcionários Inativos antes do Mês de Trabalho ou Admitidos depois dele. Deseja "
        "Imprimir também os Cartões deles?";
    const Texts everyone{"JOSÉ DA SILVA", "ANA PAULA", "RUI BARBOSA"};
    for (const Case& one :
         {Case{"01/03/2024", "31/03/2024", Answer::No, {}, everyone},
          Case{"29/02/2024", "01/04/2024", Answer::Yes, {ask}, everyone},
          Case{"29/02/2024", "01/04/2024", Answer::No, {ask}, {"JOSÉ DA SILVA"}},
          Case{"29/02/2024", "", Answer::No, {ask}, {"JOSÉ DA SILVA", "RUI BARBOSA"}}}) {
        desk.file("01configAf002") = testing::leaveBytes({}, one.anaInactiveSince);
        desk.file("01CartaPonto") = employeeList(
            {employee("001", "JOSÉ DA SILVA", {.admission = ""}),
             employee("002", "ANA PAULA", {.shift = "Dois", .admission = ""}),
             employee("003", "RUI BARBOSA", {.shift = "Tres", .admission = one.ruiAdmitted})});
        screen.load();
        engine.jobs.clear();
        desk.person.answers = {one.answer};
        EXPECT_TRUE(screen.printAll({}));
        EXPECT_TRUE(one.asked.empty() || desk.person.shown.back().detail.starts_with("ANA PAULA"));
        EXPECT_EQ(desk.person.takeTexts(), one.asked);
        EXPECT_EQ(printed(), one.printed) << one.anaInactiveSince << " " << one.ruiAdmitted;
    }
}

TEST_F(CartaoOpened, PrintOneAsksFirst) {
    desk.person.answers = {Answer::No};
    EXPECT_FALSE(screen.printOne(1, {}));
    EXPECT_EQ(desk.person.shown.at(0).title, "IMPRIMIR CARTÃO PONTO");
    EXPECT_EQ(desk.person.shown.at(0).buttons, Buttons::YesNo);
    EXPECT_EQ(desk.person.takeTexts(), Texts{kConfirmOne});
    EXPECT_TRUE(engine.jobs.empty());

    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.printOne(1, {}));
    EXPECT_EQ(desk.person.shown.at(0).detail, "");
    EXPECT_EQ(desk.person.takeTexts(), Texts{kConfirmOne});
    EXPECT_EQ(printed(), Texts{"ANA PAULA"});
    screen.choices().output = ReportOutput::Preview;
    EXPECT_FALSE(screen.printOne(1, {}));
    EXPECT_EQ(desk.person.shown.at(0).detail,
              "Com \"Visualizar\" o cartão só aparece na tela; nada é impresso.");
}

TEST_F(CartaoTest, PrintOneRefusesInOrder) {
    struct Case {
        const char* stock;
        std::optional<std::size_t> selected;
        bool withMonth;
        const char* refusal;
    };
    for (const Case& one : {Case{"", std::nullopt, false, "Selecione um Tipo de Cartão na Lista! "},
                            Case{"77", 0, true, "Selecione um Tipo de Cartão na Lista! "},
                            Case{"14", 0, true, "Selecione um Tipo de Cartão na Lista! "},
                            Case{"05", std::nullopt, false, "Selecione um Funcionário na Lista! "},
                            Case{"05", 3, true, "Selecione um Funcionário na Lista! "},
                            Case{"05", 0, false, "Informe um Mês de Trabalho!!"}}) {
        desk.file("01CartaoDePontoTipo") = one.stock;
        if (!one.withMonth) desk.files.content.erase("/data/DataIde.ivc");
        screen.load();
        desk.person.answers = {Answer::Yes};
        bool stockChosen = false;
        EXPECT_FALSE(screen.printOne(one.selected, {.chooseStock = [&] { stockChosen = true; }}));
        const Texts shown = desk.person.takeTexts();
        EXPECT_EQ(shown, (Texts{kConfirmOne, one.refusal}));
        EXPECT_EQ(stockChosen, shown.back() == "Selecione um Tipo de Cartão na Lista! ");
        saveSelectedMonth(desk.store(), {kMarch, ShiftFilter::Todos});
    }
    EXPECT_TRUE(engine.jobs.empty());
}

TEST_F(CartaoOpened, OneRunIsOneJobOfSetA) {
    desk.file("Config") = "250       40\r\n";
    desk.file("ConfigX") = "HP LaserJet\r\n";
    desk.file("01CartaoDePontoTipo") = "10DISNIBRA\r\n";
    screen.load();
    screen.choices().printer.tray = TrayPosition::Lateral;
    screen.choices().printer.trays = {"1", "", "Manual"};
    screen.choices().printer.printHeader = false;
    std::vector<std::pair<int, int>> told;
    EXPECT_TRUE(screen.printAll({.progress = [&told](int done, int total) {
        told.emplace_back(done, total);
        return true;
    }}));
    EXPECT_TRUE(desk.person.shown.empty());
    EXPECT_EQ(printed(), (Texts{"JOSÉ DA SILVA", "ANA PAULA", "RUI BARBOSA"}));
    EXPECT_EQ(told, (std::vector<std::pair<int, int>>{{1, 3}, {2, 3}, {3, 3}}));
    ASSERT_EQ(engine.jobs.size(), 1U);
    const ReportRequest& request = engine.jobs[0].request;
    EXPECT_EQ(request.layoutName, "disnibraleft.rpt");
    EXPECT_EQ(request.title, "CARTÃO PONTO");
    EXPECT_EQ(request.output, ReportOutput::Printer);
    EXPECT_EQ(request.printerName, "HP LaserJet");
    EXPECT_EQ(request.alignment.verticalTwips, 250);
    EXPECT_EQ(request.alignment.horizontalTwips, 40);
    EXPECT_EQ(request.trays, (std::array<std::string, 3>{"1", "", "Manual"}));
    EXPECT_FALSE(request.printHeader);
}

TEST_F(CartaoOpened, LayoutFollowsStockTrayAndMode) {
    struct Case {
        const char* stock;
        TrayPosition tray;
        PrintMode mode;
        const char* layout;
    };
    for (const Case& one :
         {Case{"20RHJ", TrayPosition::Lateral, PrintMode::OneRun, "RHJleft.rpt"},
          Case{"10DISNIBRA", TrayPosition::Central, PrintMode::OneRun, "disnibracenter.rpt"},
          Case{"10DISNIBRA", TrayPosition::Central, PrintMode::OneAtATime, "DISNIBRAcenter.rpt"},
          Case{"05", TrayPosition::Lateral, PrintMode::OneAtATime, "madisleft.rpt"}}) {
        desk.file("01CartaoDePontoTipo") = one.stock;
        screen.load();
        screen.choices().printer.tray = one.tray;
        screen.choices().mode = one.mode;
        desk.person.answers = {Answer::Yes, Answer::Yes};
        EXPECT_TRUE(screen.printOne(0, {}));
        EXPECT_EQ(engine.jobs.back().request.layoutName, one.layout);
    }
}

TEST_F(CartaoOpened, OneAtATimeIsAJobForEachConfirmedCard) {
    screen.choices().mode = PrintMode::OneAtATime;
    struct Case {
        const char* name;
        std::deque<Answer> answers;
        Texts asked;
        Texts printed;
    };
    const Answer yes = Answer::Yes;
    const Answer no = Answer::No;
    const Answer cancel = Answer::Cancel;
    for (const Case& one : {
             Case{"all",
                  {yes, no, yes, no, yes},
                  {kConfirmJose, kCancelOthers, kConfirmAna, kCancelOthers, kConfirmRui},
                  {"JOSÉ DA SILVA", "ANA PAULA", "RUI BARBOSA"}},
             Case{"cancel at the second",
                  {yes, no, cancel},
                  {kConfirmJose, kCancelOthers, kConfirmAna},
                  {"JOSÉ DA SILVA"}},
             Case{"no asks again",
                  {no, no, yes, no, no, cancel},
                  {kConfirmJose, kConfirmJose, kConfirmJose, kCancelOthers, kConfirmAna,
                   kConfirmAna},
                  {"JOSÉ DA SILVA"}},
             Case{
                 "cancel the others", {yes, yes}, {kConfirmJose, kCancelOthers}, {"JOSÉ DA SILVA"}},
             Case{"cancel at once", {cancel}, {kConfirmJose}, {}},
         }) {
        engine.jobs.clear();
        desk.person.answers = one.answers;
        EXPECT_EQ(screen.printAll({}), one.printed.size() == 3) << one.name;
        EXPECT_EQ(desk.person.takeTexts(), one.asked) << one.name;
        EXPECT_EQ(printed(), one.printed) << one.name;
        EXPECT_EQ(engine.jobs.size(), one.printed.size()) << one.name;
    }
}

TEST_F(CartaoOpened, SelectedCardIsConfirmedInTheOneAtATimeMode) {
    screen.choices().mode = PrintMode::OneAtATime;
    desk.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(screen.printOne(0, {}));
    EXPECT_EQ(desk.person.shown.at(1).title, "IMPRIMINDO");
    EXPECT_EQ(desk.person.shown.at(1).buttons, Buttons::YesNoCancel);
    EXPECT_EQ(desk.person.takeTexts(), (Texts{kConfirmOne, kConfirmJose}));
    EXPECT_EQ(printed(), Texts{"JOSÉ DA SILVA"});
}

TEST_F(CartaoTest, OnlyDriveCPrints) {
    for (const PrintMode mode : {PrintMode::OneRun, PrintMode::OneAtATime}) {
        desk.session.folder = DataFolder('D', "/data");
        screen.load();
        screen.choices().mode = mode;
        EXPECT_FALSE(screen.printAll({}));
        ASSERT_EQ(desk.person.shown.size(), 1U);
        EXPECT_EQ(desk.person.shown[0].title, "Imprimir");
        EXPECT_EQ(desk.person.shown[0].icon, Icon::Critical);
        EXPECT_EQ(desk.person.takeTexts(), Texts{kWrongDrive});
    }
    EXPECT_TRUE(engine.jobs.empty());
    desk.session.folder = DataFolder('c', "/data");
    screen.choices().mode = PrintMode::OneRun;
    EXPECT_TRUE(screen.printAll({}));
}

TEST_F(CartaoOpened, FailedCardEndsTheRun) {
    screen.choices().mode = PrintMode::OneAtATime;
    for (const auto& [outcome, text] :
         {std::pair(Outcome::Fails, kFailed), std::pair(Outcome::PrinterGone, kPrinterGone),
          std::pair(Outcome::NoEngine, kNoEngine), std::pair(Outcome::NoPrinter, kNoPrinter)}) {
        engine.jobs.clear();
        engine.outcomes = {Outcome::Works, outcome};
        desk.person.answers = {Answer::Yes, Answer::No, Answer::Yes, Answer::No, Answer::Yes};
        EXPECT_FALSE(screen.printAll({}));
        EXPECT_EQ(desk.person.shown.back().title, "IMPRESSÃO");
        EXPECT_EQ(desk.person.takeTexts(), (Texts{kConfirmJose, kCancelOthers, kConfirmAna, text}));
        EXPECT_EQ(printed(), Texts{"JOSÉ DA SILVA"});
    }
}

TEST_F(CartaoOpened, RecordsAreReadWhenTheirCardsTurnComes) {
    desk.file("01003-03-2024.bdx") = "  \r\n";
    desk.files.failOn.insert("01003-03-2024.bdx");
    EXPECT_FALSE(screen.printAll({}));
    EXPECT_EQ(printed(), (Texts{"JOSÉ DA SILVA", "ANA PAULA"}));
    EXPECT_EQ(desk.person.takeTexts(), Texts{kFailed});
    EXPECT_EQ(desk.log.entries.size(), 1U);
}

TEST_F(CartaoTest, UnreadableRegisterIsToldOnce) {
    for (const char* name : {"01Empresa", "01CartaPonto"}) {
        desk.files.failOn = {name};
        screen.load();
        EXPECT_EQ(desk.person.takeTexts(), Texts{"Dados incorretos!"}) << name;
        EXPECT_TRUE(screen.list().employees().empty());
    }
}

TEST_F(CartaoOpened, ProgressCancelsTheRun) {
    EXPECT_FALSE(screen.printAll({.progress = [](int done, int) { return done < 2; }}));
    EXPECT_EQ(printed(), (Texts{"JOSÉ DA SILVA", "ANA PAULA"}));
    EXPECT_TRUE(desk.person.shown.empty());
}

TEST_F(CartaoOpened, AlignmentAndPrinterAreThoseOfTheStockInUse) {
    saveOffsets(desk.store(), *alignmentEntryOf("20"), {50, 70});
    savePrintScale(desk.store(), {{"Epson", "20"}, {10100, 9900, 5, -5}});
    alignment.lines = 2;
    EXPECT_TRUE(screen.printAll({}));
    EXPECT_EQ(engine.jobs.at(0).request.printerName, "");
    EXPECT_EQ(engine.jobs.at(0).request.alignment, (Alignment{70, 50, 2, {10100, 9900, 5, -5}}));
    savePrinterName(desk.store(), "Impressora-da-recepcao-do-3o-andar");
    screen.load();
    EXPECT_TRUE(screen.printAll({}));
    EXPECT_EQ(engine.jobs.at(1).request.printerName, "Impressora-da-recepcao-do-3o-andar");
    EXPECT_EQ(engine.jobs.at(1).request.alignment.scale, PrintScale());
}

TEST_F(CartaoOpened, WhatTheScreenRemembersIsWrittenWhenItChanged) {
    EXPECT_TRUE(screen.remember());
    EXPECT_FALSE(desk.files.exists("/data/01Impresstec"));
    screen.choices().printer.tray = TrayPosition::Lateral;
    desk.files.failWritesOn = {"01Impresstec"};
    EXPECT_FALSE(screen.remember());
    EXPECT_EQ(desk.person.takeTexts(), Texts{"Dados incorretos!"});
    desk.files.failWritesOn.clear();
    screen.load();
    EXPECT_EQ(screen.choices().printer.tray, TrayPosition::Lateral) << "typed and not yet written";
    EXPECT_TRUE(screen.remember());
    Cartao reopened(desk.at, {browser, engine, printers}, alignment);
    reopened.load();
    EXPECT_EQ(reopened.choices().printer.tray, TrayPosition::Lateral);
}

TEST_F(CartaoOpened, CardIsMadeOfTheEmployeesRecords) {
    StandardSchedule schedule;
    schedule.weekday.morning = {parseTime("07:00"), parseTime("11:00")};
    const CompanyCode company = *desk.session.company;
    const EmployeeCode ana = *EmployeeCode::parse("002");
    saveSchedule(desk.store(), {company, ana}, schedule);
    std::vector<PunchLine> punches(31);
    for (std::size_t day = 0; day < punches.size(); ++day)
        punches[day].label = dayLabel(plusDays(firstDay(kMarch), static_cast<int>(day)));
    punches[0].morningEntry = "07:03";
    punches[0].morningExit = "11:00";
    punches[1].situation = "DESCANSO SEMANAL";
    desk.file(punchFileName({company, ana}, kMarch)) = punchRecordBytes(punches);
    MonthSettings march = loadMonthSettings(desk.store(), kMarch);
    march.overtime.totalsFormat = TotalsFormat::DecimalHours;
    saveMonthSettings(desk.store(), march);
    screen.load();
    EXPECT_TRUE(screen.printAll({}));
    const auto& rows = engine.jobs.at(0).cards.at(1);
    EXPECT_EQ(rows[0][cardColumn("razao")], "EMPRESA MODELO LTDA");
    EXPECT_EQ(rows[0][cardColumn("horario")], "Ent:07:00 Saí:11:00");
    EXPECT_EQ(rows[0][cardColumn("ent1")], "07:03");
    EXPECT_EQ(rows[0][cardColumn("horas")], "3,95");
    EXPECT_EQ(rows[1][cardColumn("situacao")], "DESCANSO SEMANAL");
    EXPECT_EQ(screen.headerPreview(1).substr(0, 28), "Razão: EMPRESA MODELO LTDA\n");
    EXPECT_EQ(screen.headerPreview(std::nullopt), "");
    EXPECT_EQ(screen.headerPreview(9), "");
}

}  // namespace
}  // namespace winvrx
