#include "report/impressorar.h"

#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestBrowser;
using testing::TestPrinters;
using testing::TestWorkplace;
using Texts = std::vector<std::string>;

TEST(PrinterEntry, HoldsTheNameInCharacters5To34) {
    EXPECT_EQ(printerEntry(7, "Impressão"), "007 Impressão                     ");
    EXPECT_EQ(printerOfEntry(printerEntry(7, "Impressão")), "Impressão");
    const std::string longName = "Impressora-da-recepcao-do-3o-andar";
    EXPECT_EQ(printerOfEntry(printerEntry(1, longName)), "Impressora-da-recepcao-do-3o-a");
    EXPECT_EQ(printerOfEntry(printerEntry(1, "")), "");
    EXPECT_EQ(printerOfEntry("0"), "");
    EXPECT_EQ(installedPrinter({"Epson", longName}, "Impressora-da-recepcao-do-3o-a"), longName);
    EXPECT_EQ(installedPrinter({longName, longName + "2"}, "Impressora-da-recepcao-do-3o-a"),
              std::nullopt);
    EXPECT_EQ(installedPrinter({"Epson"}, "Epso"), std::nullopt);
}

TEST(PrinterEntry, ChosenIsTheStoredNameOrTheDefaultOne) {
    TestWorkplace desk;
    EXPECT_EQ(loadPrinterName(desk.store()), "");
    savePrinterName(desk.store(), "HP LaserJet Escritório");
    EXPECT_EQ(desk.file("ConfigX"), "HP LaserJet Escrit\xF3rio\r\n");
    EXPECT_EQ(loadPrinterName(desk.store()), "HP LaserJet Escritório");
    savePrinterName(desk.store(), "");
    EXPECT_EQ(desk.file("ConfigX"), "Padrao\r\n");
    EXPECT_EQ(loadPrinterName(desk.store()), "");
}

struct Opened : ::testing::Test {
    Opened() { screen.load(); }

    TestWorkplace desk;
    TestBrowser browser;
    TestPrinters printers;
    Impressorar screen{desk.at, browser, printers};
};

TEST_F(Opened, AChoiceIsOneLineAndIsShownAgain) {
    EXPECT_EQ(screen.entries().at(0).substr(0, 13), "001 HP-Balcao");
    EXPECT_EQ(screen.chosen(), "");
    EXPECT_TRUE(screen.use(0));
    EXPECT_EQ(desk.file("ConfigX"), "HP-Balcao\r\n");
    Impressorar reopened(desk.at, browser, printers);
    reopened.load();
    EXPECT_EQ(reopened.chosen(), "HP-Balcao");
    EXPECT_TRUE(reopened.useDefault());
    EXPECT_EQ(desk.file("ConfigX"), "Padrao\r\n");
    EXPECT_EQ(reopened.chosen(), "");
}

TEST_F(Opened, APrinterThatWentMeanwhileCannotBeChosen) {
    printers.installed = {"Epson"};
    EXPECT_FALSE(screen.use(0));
    EXPECT_EQ(desk.person.takeTexts(), Texts{"ERRO AO IMPRIMIR"});
    EXPECT_FALSE(desk.files.exists("/data/ConfigX"));
    EXPECT_EQ(screen.printers(), Texts{"Epson"});
    EXPECT_TRUE(screen.isReachable());
    printers.usual = "";
    EXPECT_FALSE(screen.isReachable());
}

TEST_F(Opened, AFailedOrOvertakenChoiceLeavesTheFormerOne) {
    desk.files.failWritesOn = {"ConfigX"};
    EXPECT_FALSE(screen.use(1));
    EXPECT_EQ(screen.chosen(), "");
    EXPECT_EQ(desk.person.takeTexts(), Texts{"Dados incorretos!"});
    desk.files.failWritesOn.clear();
    desk.file("ConfigX") = "Epson\r\n";
    EXPECT_FALSE(screen.use(0));
    EXPECT_EQ(desk.person.shown.at(0).detail,
              "A impressora foi trocada por outro computador. Abra a tela novamente.");
    EXPECT_EQ(desk.file("ConfigX"), "Epson\r\n");
}

TEST_F(Opened, TheAddDialogueIsTheSystemsOwn) {
    EXPECT_TRUE(screen.add());
    EXPECT_TRUE(desk.person.shown.empty());
    printers.hasDialogue = false;
    EXPECT_FALSE(screen.add());
    EXPECT_EQ(printers.opened, 2);
    EXPECT_EQ(desk.person.takeTexts(), Texts{"Ocorreu Erro"});
}

}  // namespace
}  // namespace winvrx
