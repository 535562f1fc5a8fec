// Runs that end in PDF files, and cards of two sides.
#include "output/cards/cartao.h"

#include "tests/support/printing_screen.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::CartaoOpened;
using testing::RecordingEngine;
using testing::Texts;

const std::string kFailed = "Erro na Impressão do Relatório.";
const std::string kNoEngine =
    "Erro na Instalação do Programa!\n* Confirme a Instalação do CrystalReport;";
const std::string kNoPrinter =
    "ERRO NA IMPRESSÃO DO RELATÓRIO - Isto ocorre quando não há Impressoras Instalada no PC!";

TEST_F(CartaoOpened, PdfIsAskedForOnceAJob) {
    screen.choices().output = ReportOutput::PdfFile;
    Texts proposed;
    const PrintRun run{.choosePdf = [&proposed](const std::string& name) {
        proposed.push_back(name);
        return proposed.size() == 3 ? std::string() : "/home/" + name;
    }};
    EXPECT_TRUE(screen.printAll(run));
    EXPECT_EQ(engine.jobs.at(0).request.pdfPath,
              "/home/CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf");
    screen.choices().mode = PrintMode::OneAtATime;
    desk.person.answers = {Answer::Yes, Answer::No, Answer::Yes};
    EXPECT_FALSE(screen.printAll(run));
    EXPECT_EQ(proposed, (Texts{"CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf",
                               "CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf",
                               "CARTÃO PONTO 002 ANA PAULA 03-2024.pdf"}));
    EXPECT_EQ(engine.jobs.size(), 2U);
}

TEST_F(CartaoOpened, OnePdfForEachEmployeeGoesIntoOneFolder) {
    screen.choices().output = ReportOutput::PdfFile;
    screen.choices().pdfFiles = PdfFiles::OneForEach;
    std::string folder;
    const PrintRun run{.choosePdfFolder = [&folder] { return folder; }};
    EXPECT_FALSE(screen.printAll(run));
    EXPECT_TRUE(engine.jobs.empty());

    folder = "/home/cards";
    EXPECT_TRUE(screen.printAll(run));
    Texts paths;
    for (const auto& job : engine.jobs)
        paths.push_back(job.request.pdfPath);
    EXPECT_EQ(paths, (Texts{"/home/cards/CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf",
                            "/home/cards/CARTÃO PONTO 002 ANA PAULA 03-2024.pdf",
                            "/home/cards/CARTÃO PONTO 003 RUI BARBOSA 03-2024.pdf"}));
    EXPECT_EQ(printed(), (Texts{"JOSÉ DA SILVA", "ANA PAULA", "RUI BARBOSA"}));
    EXPECT_TRUE(desk.person.shown.empty());

    desk.files.content[paths[1]] = "of yesterday";
    EXPECT_FALSE(screen.printAll(run));
    EXPECT_EQ(desk.person.takeTexts(),
              Texts{"Já existem nesta pasta arquivos destes cartões. Deseja substituí-los?"});
    EXPECT_EQ(engine.jobs.size(), 3U);
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.printAll(run));
    EXPECT_EQ(engine.jobs.size(), 6U);
}

/// Names of the cards of a job, and the side that it printed.
std::pair<CardSide, Texts> passOf(const RecordingEngine::Job& job) {
    Texts names;
    for (const auto& card : job.cards)
        names.push_back(card[0][cardColumn("nome")]);
    return {job.request.side, names};
}

TEST_F(CartaoOpened, TwoSidesArePrintedOneAfterTheOther) {
    engine.sides = 2;
    std::vector<std::pair<int, int>> told;
    const PrintRun run{.progress = [&told](int done, int total) {
        told.emplace_back(done, total);
        return true;
    }};
    const Texts forward = {"JOSÉ DA SILVA", "ANA PAULA", "RUI BARBOSA"};
    const Texts backward = {"RUI BARBOSA", "ANA PAULA", "JOSÉ DA SILVA"};
    for (const auto& [output, second] :
         {std::pair(CardOutput::FaceDown, backward), std::pair(CardOutput::FaceUp, forward)}) {
        engine.jobs.clear();
        told.clear();
        screen.choices().printer.output = output;
        desk.person.answers = {Answer::Yes};
        EXPECT_TRUE(screen.printAll(run));
        EXPECT_EQ(desk.person.shown.at(0).detail, stackInstruction(output, 3));
        desk.person.shown.clear();
        ASSERT_EQ(engine.jobs.size(), 2U);
        EXPECT_EQ(passOf(engine.jobs[0]), std::pair(CardSide::First, forward));
        EXPECT_EQ(passOf(engine.jobs[1]), std::pair(CardSide::Second, second));
        EXPECT_EQ(told.front(), std::pair(1, 6));
        EXPECT_EQ(told.back(), std::pair(6, 6));
    }
}

TEST_F(CartaoOpened, TheSecondSideIsLeftOnlyByDecision) {
    engine.sides = 2;
    const std::string second =
        "O primeiro lado já foi enviado. Deseja imprimir o segundo lado agora?";
    const std::string leave = "Deseja deixar os cartões impressos somente no primeiro lado?";
    desk.person.answers = {Answer::No, Answer::No, Answer::No, Answer::Yes};
    EXPECT_FALSE(screen.printAll({}));
    EXPECT_EQ(desk.person.takeTexts(), (Texts{second, leave, second, leave}));
    EXPECT_EQ(engine.jobs.size(), 1U);
    engine.results = {ReportResult::Failed};
    EXPECT_FALSE(screen.printAll({}));
    EXPECT_EQ(desk.person.takeTexts(), Texts{kFailed});
}

TEST_F(CartaoOpened, TwoSidesAreSeenTogether) {
    engine.sides = 2;
    const Texts jose = {"JOSÉ DA SILVA"};
    screen.setSearch("jose");
    screen.choices().output = ReportOutput::PdfFile;
    EXPECT_TRUE(screen.printAll({.choosePdf = [](const std::string& name) { return "/" + name; }}));
    EXPECT_EQ(passOf(engine.jobs.at(0)), std::pair(CardSide::Whole, jose));

    engine.jobs.clear();
    screen.choices().output = ReportOutput::Preview;
    ReportResult printed = ReportResult::Failed;
    engine.whilePreviewed = [&](const ReportRequest& request) {
        desk.person.answers = {Answer::Yes};
        const CardProgress goOn = [](int) { return true; };
        EXPECT_EQ(request.pdfPath, "CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf");
        printed = request.printPreviewed(goOn);
        engine.results = {ReportResult::NoPrinter};
        EXPECT_EQ(request.printPreviewed(goOn), ReportResult::Cancelled);
    };
    EXPECT_TRUE(screen.printAll({}));
    EXPECT_EQ(printed, ReportResult::Done);
    ASSERT_EQ(engine.jobs.size(), 4U);
    EXPECT_EQ(passOf(engine.jobs[0]), std::pair(CardSide::Whole, jose));
    EXPECT_EQ(passOf(engine.jobs[1]), std::pair(CardSide::First, jose));
    EXPECT_EQ(passOf(engine.jobs[2]), std::pair(CardSide::Second, jose));
    EXPECT_EQ(engine.jobs[1].request.output, ReportOutput::Printer);
    EXPECT_EQ(desk.person.shown.back().text, kNoPrinter);
}

/// The preview's progress is gone when the next card of the run is prepared.
TEST_F(CartaoOpened, ThePreviewsProgressEndsWithItsPrinting) {
    engine.sides = 2;
    screen.choices().output = ReportOutput::Preview;
    screen.choices().mode = PrintMode::OneAtATime;
    bool printing = false;
    const CardProgress ofThePreview = [&printing](int) {
        EXPECT_TRUE(printing);
        return true;
    };
    engine.whilePreviewed = [&](const ReportRequest& request) {
        printing = true;
        EXPECT_EQ(request.printPreviewed(ofThePreview), ReportResult::Done);
        printing = false;
    };
    int told = 0;
    const PrintRun run{.progress = [&told](int, int) { return ++told > 0; }};
    const Answer yes = Answer::Yes;
    desk.person.answers = {yes, yes, Answer::No, yes, yes, Answer::No, yes, yes};
    EXPECT_TRUE(screen.printAll(run));
    EXPECT_EQ(told, 3);
}

}  // namespace
}  // namespace winvrx
