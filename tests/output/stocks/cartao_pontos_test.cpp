#include "output/stocks/cartao_pontos.h"

#include "foundation/register/company_register.h"
#include "output/stocks/card_rows.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::RecordingEngine;
using testing::TestPrinters;
using testing::TestWorkplace;
using Texts = std::vector<std::string>;

const std::string kTestQuestion =
    "Coloque um Cartão MADIS na Impressora! Pressione SIM para Imprimir ou NÃO para Cancelar "
    "Impressão.";

/// Stock "MADIS" and the printer "HP-Balcao".
struct CartaoPontosTest : ::testing::Test {
    CartaoPontosTest() {
        Company company;
        company.code = "01";
        company.name = "EMPRESA MODELO LTDA";
        desk.file("01Empresa") = encode(company) + "\r\n";
        desk.file("01CartaoDePontoTipo") = "05\r\n";
        desk.file("ConfigX") = "HP-Balcao\r\n";
        screen.load();
    }

    TestWorkplace desk;
    RecordingEngine engine;
    TestPrinters printers;
    AlignmentMemory memory;
    CartaoPontos screen{desk.at, {engine, printers, memory}};
};

TEST_F(CartaoPontosTest, EachStepIsTwentyTwipsWithinTheBoundsAndRecorded) {
    EXPECT_EQ(screen.stock().code, "05");
    EXPECT_EQ(screen.offsets(), (Offsets{10, 10}));
    struct Case {
        Direction direction;
        int presses;
        Offsets offsets;
    };
    for (const Case& one :
         {Case{Direction::Right, 1, {10, 30}}, Case{Direction::Down, 3, {70, 30}},
          Case{Direction::Left, 1, {70, 10}}, Case{Direction::Left, 3, {70, 0}},
          Case{Direction::Up, 9, {0, 0}}, Case{Direction::Down, 80, {1500, 0}},
          Case{Direction::Right, 76, {1500, 1500}}, Case{Direction::Left, 1, {1500, 1480}}}) {
        for (int press = 0; press < one.presses; ++press)
            EXPECT_TRUE(screen.move(one.direction));
        EXPECT_EQ(screen.offsets(), one.offsets);
        EXPECT_EQ(loadOffsets(desk.store())[4], one.offsets);
        EXPECT_EQ(loadOffsets(desk.store())[3], Offsets());
    }
}

TEST_F(CartaoPontosTest, AnEntryLoadsItsOffsetsAndItsScale) {
    saveOffsets(desk.store(), 0, {50, 90});
    savePrintScale(desk.store(), {{"HP-Balcao", "01"}, {10100, 9900, 100, -50}});
    EXPECT_TRUE(screen.select(0));
    EXPECT_EQ(screen.alignment(), (Alignment{90, 50, 0, {10100, 9900, 100, -50}}));
    EXPECT_EQ(screen.layoutName(), "tilibcenter.rpt");
    desk.files.failOn = {"Config"};
    EXPECT_FALSE(screen.select(1));
    EXPECT_EQ(screen.stock().code, "01");
    EXPECT_EQ(desk.person.takeTexts(), Texts{"Dados incorretos!"});
}

TEST_F(CartaoPontosTest, ResetAsksAndBringsTheDefaultsBack) {
    EXPECT_TRUE(screen.move(Direction::Right));
    screen.typeLineOffset("3 Linhas");
    EXPECT_FALSE(screen.reset());
    EXPECT_TRUE(desk.files.exists("/data/Config"));
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.reset());
    EXPECT_FALSE(desk.files.exists("/data/Config"));
    EXPECT_EQ(screen.alignment(), (Alignment{10, 10, 0, {}}));
}

TEST_F(CartaoPontosTest, LineOffsetTakesTheTextsOfItsListOnly) {
    EXPECT_EQ(screen.lineOffset(), "nenhuma");
    struct Case {
        const char* typed;
        const char* shown;
        int lines;
    };
    for (const Case& one :
         {Case{"2 Linhas", "2 Linhas", 2}, Case{"11 Linhas", "1 Linha", 1},
          Case{"10 Linhas", "10 Linhas", 10}, Case{"1 Linha", "1 Linha", 1},
          Case{"9 linhas", "1 Linha", 1}, Case{"5", "1 Linha", 1}, Case{"", "nenhuma", 0},
          Case{"0", "1 Linha", 1}, Case{"nenhuma", "nenhuma", 0}, Case{"1 Linhas", "1 Linha", 1},
          Case{"0 Linhas", "1 Linha", 1}}) {
        screen.typeLineOffset(one.typed);
        EXPECT_EQ(screen.lineOffset(), one.shown) << one.typed;
        EXPECT_EQ(screen.alignment().lines, one.lines) << one.typed;
    }
    screen.typeLineOffset("4 Linhas");
    CartaoPontos reopened(desk.at, {engine, printers, memory});
    reopened.load();
    EXPECT_EQ(reopened.lineOffset(), "4 Linhas");
}

TEST_F(CartaoPontosTest, AFailedStepLeavesFileAndFigures) {
    EXPECT_TRUE(screen.move(Direction::Right));
    const std::string before = desk.file("Config");
    desk.files.failWritesOn = {"Config"};
    EXPECT_FALSE(screen.move(Direction::Right));
    EXPECT_EQ(screen.offsets(), (Offsets{10, 30}));
    EXPECT_EQ(desk.file("Config"), before);
    desk.files.failWritesOn.clear();
    desk.person.takeTexts();
    saveOffsets(desk.store(), 4, {500, 500});
    EXPECT_FALSE(screen.move(Direction::Right));
    EXPECT_EQ(desk.person.shown.at(0).detail,
              "O alinhamento foi alterado por outro computador. Abra a tela novamente.");
    EXPECT_EQ(loadOffsets(desk.store())[4], (Offsets{500, 500}));
}

TEST_F(CartaoPontosTest, TestPrintAsksForTheCardAndTakesTheAlignmentAlong) {
    desk.file("01Impresstec") = "Lateral\r\nManual\r\n\r\n\r\n0\r\n";
    screen.load();
    EXPECT_TRUE(screen.move(Direction::Down));
    EXPECT_FALSE(screen.printTest());
    EXPECT_EQ(desk.person.shown.at(0).title, "Imprimir Teste");
    EXPECT_EQ(desk.person.shown.at(0).buttons, Buttons::YesNo);
    EXPECT_EQ(desk.person.takeTexts(), Texts{kTestQuestion});
    EXPECT_TRUE(engine.jobs.empty());

    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.printTest());
    ASSERT_EQ(engine.jobs.size(), 1U);
    const ReportRequest& request = engine.jobs[0].request;
    EXPECT_EQ(request.layoutName, "madisleft.rpt");
    EXPECT_EQ(request.output, ReportOutput::Printer);
    EXPECT_EQ(request.printerName, "HP-Balcao");
    EXPECT_EQ(request.trays[0], "Manual");
    EXPECT_FALSE(request.printHeader);
    EXPECT_EQ(request.alignment, (Alignment{10, 30, 0, {}}));
    ASSERT_EQ(engine.jobs[0].cards.size(), 1U);
    const auto& rows = engine.jobs[0].cards[0];
    EXPECT_EQ(rows[0][cardColumn("mes")], "março/2024");
    EXPECT_EQ(rows[0][cardColumn("razao")], "EMPRESA MODELO LTDA");
    EXPECT_EQ(rows[30][cardColumn("sai3")], "19:00");
    EXPECT_EQ(rows, screen.sampleRows());
    for (const std::size_t row : {7U, 22U})
        EXPECT_EQ(rows[row][cardColumn("situacao")], "março/2024") << "without the header too";

    engine.sides = 2;
    desk.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(screen.printTest());
    ASSERT_EQ(engine.jobs.size(), 3U);
    EXPECT_EQ(engine.jobs[1].request.sides, SheetSides::First);
    EXPECT_EQ(engine.jobs[2].request.sides, SheetSides::Second);
}

TEST_F(CartaoPontosTest, CalibrationSheetIsPrintedUntouched) {
    EXPECT_TRUE(screen.move(Direction::Down));
    EXPECT_TRUE(screen.calibration().type({"101", "99", "1", "2"}));
    screen.typeLineOffset("2 Linhas");
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.calibration().printSheet());
    EXPECT_EQ(engine.jobs.at(0).request.alignment, Alignment());
    EXPECT_EQ(engine.jobs.at(0).request.layoutName, "calibracao.rpt");
    EXPECT_EQ(engine.jobs.at(0).cards.at(0), (ReportRows{{"HP-Balcao"}}));
}

TEST_F(CartaoPontosTest, FailedPrintsAreTold) {
    struct Case {
        RecordingEngine::Outcome outcome;
        const char* text;
    };
    engine.why = "A impressora HP-Balcao não foi encontrada.";
    for (const Case& one :
         {Case{RecordingEngine::Outcome::PrinterGone, "ERRO AO IMPRIMIR"},
          Case{RecordingEngine::Outcome::Fails, "Erro na Impressão do Relatório."},
          Case{RecordingEngine::Outcome::NoPrinter,
               "ERRO NA IMPRESSÃO DO RELATÓRIO - Isto ocorre quando não há Impressoras Instalada "
               "no PC!"}}) {
        engine.outcomes = {one.outcome};
        desk.person.answers = {Answer::Yes};
        EXPECT_FALSE(screen.printTest());
        EXPECT_EQ(desk.person.shown.back().text, one.text);
        EXPECT_EQ(desk.person.shown.back().detail.empty(),
                  one.outcome == RecordingEngine::Outcome::NoPrinter);
    }
}

TEST_F(CartaoPontosTest, ScaleIsTypedOrMeasuredAndKeptForPrinterAndStock) {
    EXPECT_TRUE(screen.calibration().type({"100,5", "99,75", "-1,2", "0"}));
    EXPECT_EQ(screen.calibration().scale(), (PrintScale{10050, 9975, -120, 0}));
    EXPECT_EQ(loadPrintScale(desk.store(), {"HP-Balcao", "05"}), screen.calibration().scale());
    EXPECT_TRUE(screen.calibration().typeDistances({"31", "181", "30", "260"}));
    EXPECT_EQ(screen.calibration().scale(), (PrintScale{10000, 10000, -100, 0}));

    const std::string before = desk.file("EscalaImpressao");
    for (const auto& figures : {std::array<std::string, 4>{"", "100", "0", "0"},
                                {"111", "100", "0", "0"},
                                {"100", "100", "50,01", "0"},
                                {"100", "100", "0", "x"}}) {
        EXPECT_FALSE(screen.calibration().type(figures));
        EXPECT_EQ(desk.person.takeTexts(), Texts{"Dados incorretos!"});
    }
    EXPECT_FALSE(screen.calibration().typeDistances({"30", "18", "30", "260"}));
    EXPECT_FALSE(screen.calibration().typeDistances({"30", "180", "", "260"}));
    EXPECT_EQ(desk.file("EscalaImpressao"), before);

    desk.file("ConfigX") = "Padrao\r\n";
    printers.usual = "";
    screen.load();
    desk.person.takeTexts();
    EXPECT_FALSE(screen.calibration().type({"100", "100", "0", "1"}));
    EXPECT_EQ(desk.person.shown.at(0).detail, "Não há uma impressora escolhida.");
}

}  // namespace
}  // namespace winvrx
