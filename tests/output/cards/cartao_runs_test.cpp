// Runs that end in PDF files, and cards of two sides.
#include "output/cards/cartao.h"

#include "report/print_pages.h"
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
    const std::string path = "/home/CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf";
    desk.person.answers = {Answer::Yes};
    browser.works = false;
    EXPECT_TRUE(screen.printAll(run));
    EXPECT_EQ(engine.jobs.at(0).request.pdfPath, path);
    EXPECT_EQ(desk.person.shown.at(0).detail, path);
    EXPECT_EQ(desk.person.takeTexts(), (Texts{"O PDF foi gravado. Deseja abri-lo?",
                                              "Não há programa que abra este arquivo."}));
    EXPECT_EQ(browser.files, Texts{path});
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
    EXPECT_EQ(desk.person.shown.at(0).detail, "/home/cards");
    EXPECT_EQ(desk.person.takeTexts(),
              Texts{"3 arquivos PDF foram gravados. Deseja abrir a pasta?"});
    EXPECT_TRUE(browser.files.empty());

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
std::pair<SheetSides, Texts> passOf(const RecordingEngine::Job& job) {
    Texts names;
    for (const auto& card : job.cards)
        names.push_back(card[0][cardColumn("nome")]);
    return {job.request.sides, names};
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
    for (const auto& [exit, second] :
         {std::pair(SheetExit::FaceDown, backward), std::pair(SheetExit::FaceUp, forward)}) {
        engine.jobs.clear();
        told.clear();
        screen.choices().printer.exit = exit;
        desk.person.answers = {Answer::Yes};
        EXPECT_TRUE(screen.printAll(run));
        EXPECT_EQ(desk.person.shown.at(0).detail, sheetsBackInstruction(exit, 3));
        desk.person.shown.clear();
        ASSERT_EQ(engine.jobs.size(), 2U);
        EXPECT_EQ(passOf(engine.jobs[0]), std::pair(SheetSides::First, forward));
        EXPECT_EQ(passOf(engine.jobs[1]), std::pair(SheetSides::Second, second));
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
    engine.outcomes = {RecordingEngine::Outcome::Fails};
    EXPECT_FALSE(screen.printAll({}));
    EXPECT_EQ(desk.person.takeTexts(), Texts{kFailed});
}

TEST_F(CartaoOpened, TwoSidesAreSeenTogether) {
    engine.sides = 2;
    const Texts jose = {"JOSÉ DA SILVA"};
    screen.list().searchFor("jose");
    screen.choices().output = ReportOutput::PdfFile;
    EXPECT_TRUE(screen.printAll({.choosePdf = [](const std::string& name) { return "/" + name; }}));
    EXPECT_EQ(passOf(engine.jobs.at(0)), std::pair(SheetSides::Both, jose));

    engine.jobs.clear();
    screen.choices().output = ReportOutput::Preview;
    engine.whilePreviewed = [&](const auto& print) {
        desk.person.answers = {Answer::Yes, Answer::No, Answer::Yes};
        EXPECT_EQ(print(), PrintEnd::Done);
        EXPECT_EQ(print(), PrintEnd::Cancelled) << "the operator leaves the second side";
    };
    EXPECT_TRUE(screen.printAll({}));
    ASSERT_EQ(engine.jobs.size(), 4U);
    EXPECT_EQ(passOf(engine.jobs[0]), std::pair(SheetSides::Both, jose));
    EXPECT_EQ(engine.jobs[0].request.pdfPath, "CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf");
    EXPECT_EQ(passOf(engine.jobs[1]), std::pair(SheetSides::First, jose));
    EXPECT_EQ(passOf(engine.jobs[2]), std::pair(SheetSides::Second, jose));
    EXPECT_EQ(engine.jobs[1].request.output, ReportOutput::Printer);
}

/// One card at a time on one or two sides, printed at once or from its preview.
TEST_F(CartaoOpened, AFailedCardEndsTheRunWhereverItIsPrintedFrom) {
    using Outcome = RecordingEngine::Outcome;
    const Outcome works = Outcome::Works;
    const Outcome fails = Outcome::PrinterGone;
    struct Case {
        int sides;
        ReportOutput output;
        std::deque<Outcome> outcomes;
        std::size_t jobs;  ///< the one that fails included
    };
    screen.choices().mode = PrintMode::OneAtATime;
    engine.whilePreviewed = [](const auto& print) { (void)print(); };
    for (const Case& one :
         {Case{1, ReportOutput::Printer, {fails}, 1}, Case{2, ReportOutput::Printer, {fails}, 1},
          Case{2, ReportOutput::Printer, {works, fails}, 2},
          Case{1, ReportOutput::Preview, {works, fails}, 2},
          Case{2, ReportOutput::Preview, {works, fails}, 2},
          Case{2, ReportOutput::Preview, {works, works, fails}, 3}}) {
        engine.jobs.clear();
        engine.sides = one.sides;
        engine.outcomes = one.outcomes;
        screen.choices().output = one.output;
        desk.person.answers = {Answer::Yes, Answer::Yes};
        EXPECT_FALSE(screen.printAll({}));
        EXPECT_EQ(engine.jobs.size(), one.jobs);
        EXPECT_EQ(desk.person.takeTexts().back(), "ERRO AO IMPRIMIR");
        desk.person.answers.clear();
    }
}

/// Prints both sides the way the instruction has it, and looks at the cards then: each has its
/// second side on its back, whether it is one card or a stack. See docs/layout-files.md.
TEST(TwoSides, TheInstructionBringsEachCardsBackUnderThePrint) {
    enum class Feed { PrintsUpperFace, PrintsLowerFace };
    struct Card {
        std::size_t number;
        bool printIsUp;
        bool operator==(const Card&) const = default;
    };
    for (const std::size_t cards : {1U, 5U})
        for (const bool leavesFaceDown : {true, false})
            for (const Feed feed : {Feed::PrintsUpperFace, Feed::PrintsLowerFace}) {
                const bool lower = feed == Feed::PrintsLowerFace;
                // Who prints the lower face chooses the other of the two options.
                const SheetExit chosen =
                    leavesFaceDown != lower ? SheetExit::FaceDown : SheetExit::FaceUp;
                std::vector<Card> stack;  // the bottom first
                for (std::size_t number = 0; number < cards; ++number)
                    stack.push_back({number, !leavesFaceDown});
                if (sheetsBackInstruction(chosen, cards).starts_with("Vire")) {
                    std::ranges::reverse(stack);
                    for (Card& card : stack)
                        card.printIsUp = !card.printIsUp;
                }
                ReportPages second(cards,
                                   [](std::size_t at) { return ReportRows{{std::to_string(at)}}; });
                second.restart(secondSideOrder(chosen));
                while (const auto rows = second.next()) {
                    const Card taken = stack.back();  // the tray takes the card on top
                    stack.pop_back();
                    EXPECT_EQ(std::to_string(taken.number), rows->front().front());
                    EXPECT_EQ(taken.printIsUp, lower) << "its blank face is printed";
                }
            }
}

}  // namespace
}  // namespace winvrx
