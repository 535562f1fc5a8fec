#include "report/desktop/system_printers.h"
#include "report/impressorar.h"
#include "tests/support/desktop/print_server.h"
#include "tests/support/printed_text.h"
#include "tests/support/printing_screen.h"
#include "tests/support/report_desk.h"
#include "tests/support/test_browser.h"

#include <QCoreApplication>
#include <QFile>

#include <gmock/gmock.h>

#include <algorithm>

namespace winvrx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Cups : public ::testing::Test {
  protected:
    void SetUp() override {
        const QString obstacle = PrintServer::obstacle();
        if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
        if (!canReadPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        printServer.start();
        desk_.request.output = ReportOutput::Printer;
        desk_.request.title = "winvrx-" + std::to_string(QCoreApplication::applicationPid()) +
                              ::testing::UnitTest::GetInstance()->current_test_info()->name();
    }
    void TearDown() override { printServer.stop(); }

    /// Pages of the job of this test, as they left the queue; takes them away.
    [[nodiscard]] int printedPages() const {
        const QString file = printServer.printedFile(QString::fromStdString(desk_.request.title));
        const QString text = outputOf(QStringLiteral("pdftotext"),
                                      {QStringLiteral("-bbox"), file, QStringLiteral("-")});
        QFile::remove(file);
        return static_cast<int>(text.count(QStringLiteral("<page ")));
    }

    ReportDesk desk_;
};

TEST(Printing, SaysWhenNoPrinterIsInstalled) {
    ReportDesk desk;
    desk.request.output = ReportOutput::Printer;
    EXPECT_EQ(desk.print(1), PrintEnd::Failed);
    EXPECT_THAT(desk.office.person.takeTexts().at(0), HasSubstr("não há Impressoras Instalada"));
}

TEST_F(Cups, PrintsTheCardsOfARunAsOneJob) {
    printServer.addPrinter(QStringLiteral("cartao"));
    desk_.request.printerName = "cartao";
    desk_.request.alignment = {720, 1440, 0};
    desk_.request.trays = {" ", " Manual", "Lower"};
    ASSERT_EQ(desk_.print(3), PrintEnd::Done) << ::testing::PrintToString(desk_.log.entries);

    EXPECT_EQ(printedPages(), 3);
    const auto words = printedWords(printServer.lastDocument());
    EXPECT_EQ(wordOf(words, QStringLiteral("3")).page, 3);
    const double halfInch = 36;
    EXPECT_NEAR(wordOf(words, QStringLiteral("Razão:")).left,
                67.1 * kPointsPerMillimetre + halfInch, 0.01);
    EXPECT_THAT(printServer.lastOptionsOnStop().toStdString(), HasSubstr("Manual"));
}

TEST_F(Cups, CountsFromTheSheetsCornerWhateverThePrintersMargins) {
    printServer.addPrinterWithMargins(QStringLiteral("margens"));
    desk_.request.printerName = "margens";
    ASSERT_EQ(desk_.print(1), PrintEnd::Done) << ::testing::PrintToString(desk_.log.entries);
    EXPECT_EQ(printedPages(), 1);
    const auto onPaper = printedWords(printServer.lastDocument());
    desk_.request.output = ReportOutput::PdfFile;
    ASSERT_EQ(desk_.print(1), PrintEnd::Done);
    const auto inFile = printedWords(desk_.pdf());
    for (const auto& word : {QStringLiteral("Razão:"), QStringLiteral("08:00")}) {
        EXPECT_NEAR(wordOf(onPaper, word).left, wordOf(inFile, word).left, 0.01);
        EXPECT_NEAR(wordOf(onPaper, word).top, wordOf(inFile, word).top, 0.01);
    }
}

TEST_F(Cups, PrintsOnTheDefaultPrinter) {
    printServer.addPrinter(QStringLiteral("cartao"));
    EXPECT_EQ(desk_.print(1), PrintEnd::Failed) << "no default printer is set";
    printServer.makeDefault(QStringLiteral("cartao"));
    ASSERT_EQ(desk_.print(1), PrintEnd::Done);
    EXPECT_EQ(printedPages(), 1);
}

TEST_F(Cups, FindsALongName) {
    const SystemPrinters printers;
    const std::string longName = "impressora-da-recepcao-do-terceiro-andar";
    printServer.addPrinter(QStringLiteral("cartao"));
    printServer.addPrinter(QString::fromStdString(longName));
    EXPECT_THAT(printers.names(), ::testing::IsSupersetOf({std::string("cartao"), longName}));
    printServer.makeDefault(QStringLiteral("cartao"));
    EXPECT_EQ(printers.defaultName(), "cartao");
    desk_.request.printerName = longName.substr(0, 30);
    ASSERT_EQ(desk_.print(2), PrintEnd::Done) << ::testing::PrintToString(desk_.log.entries);
    EXPECT_EQ(printedPages(), 2);
}

TEST_F(Cups, KeepsTheCardsPrintedBeforeACancel) {
    printServer.addPrinter(QStringLiteral("cartao"));
    desk_.request.printerName = "cartao";
    EXPECT_EQ(desk_.print(ReportPages(9, sampleCard), [](int done, int) { return done < 2; }),
              PrintEnd::Cancelled);
    EXPECT_EQ(printedPages(), 2);
}

/// The printing screen over the real engine, on a printer that the printer screen chose.
class PrintingScreen : public Cups {
  protected:
    void SetUp() override {
        Cups::SetUp();
        if (IsSkipped()) return;
        fillPrintingDesk(office_, "05");
        printServer.addPrinter(QStringLiteral("cartao"));
        Impressorar choice(office_.at, printers_);
        choice.load();
        const auto& names = choice.printers();
        const auto at = std::ranges::find(names, "cartao") - names.begin();
        ASSERT_TRUE(choice.use(static_cast<std::size_t>(at)));
        screen_.load();
        screen_.choices().output = ReportOutput::Printer;
    }

    TestWorkplace office_;
    SystemPrinters printers_;
    AlignmentMemory alignment_;
    TestBrowser browser_;
    Cartao screen_{office_.at, {browser_, desk_.engine, printers_}, alignment_};
};

TEST_F(PrintingScreen, PrintsTheSecondSideBackwards) {
    office_.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen_.printAll({})) << ::testing::PrintToString(desk_.log.entries);
    EXPECT_EQ(office_.person.takeTexts().size(), 1U);
    const auto words = printedWords(printServer.lastDocument());
    EXPECT_EQ(wordOf(words, QStringLiteral("RUI")).page, 1);
    EXPECT_EQ(wordOf(words, QStringLiteral("JOSÉ")).page, 3);
    EXPECT_EQ(wordOf(words, QStringLiteral("16")).page, 1);
    EXPECT_TRUE(std::ranges::none_of(
        words, [](const PrintedWord& word) { return word.text == QStringLiteral("15"); }));
}

TEST_F(PrintingScreen, SaysThatThePrinterWentSinceItWasChosen) {
    printServer.addPrinter(QStringLiteral("outra"));
    printServer.removePrinter(QStringLiteral("cartao"));
    EXPECT_FALSE(screen_.printAll({}));
    ASSERT_EQ(office_.person.shown.size(), 1U);
    EXPECT_EQ(office_.person.shown[0].text, "ERRO AO IMPRIMIR");
    EXPECT_EQ(office_.person.shown[0].detail, "A impressora cartao não foi encontrada.");
}

TEST_F(Cups, FailsOnAPrinterThatIsNotThere) {
    printServer.addPrinter(QStringLiteral("cartao"));
    printServer.addPrinter(QStringLiteral("outra"));
    printServer.removePrinter(QStringLiteral("cartao"));
    desk_.request.printerName = "cartao";
    EXPECT_EQ(desk_.print(1), PrintEnd::Failed);
    EXPECT_THAT(desk_.log.entries, ElementsAre(HasSubstr("cartao")));
    EXPECT_EQ(desk_.office.person.shown.at(0).detail, "A impressora cartao não foi encontrada.");
}

TEST_F(Cups, FailsWhenThePrinterGoesDuringTheRun) {
    printServer.addPrinter(QStringLiteral("cartao"));
    desk_.request.printerName = "cartao";
    const PageProgress unplug = [](int, int) {
        printServer.removePrinter(QStringLiteral("cartao"));
        return true;
    };
    EXPECT_EQ(desk_.print(ReportPages(1, sampleCard), unplug), PrintEnd::Failed);
    EXPECT_EQ(desk_.office.person.takeTexts(), Texts{"ERRO AO IMPRIMIR"});
}

}  // namespace
}  // namespace winvrx::testing
