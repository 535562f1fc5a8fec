#include "report/impressorar.h"

#include "tests/support/test_printers.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using testing::TestPrinters;
using testing::TestWorkplace;
using Texts = std::vector<std::string>;

/// Thirty characters.
const std::string kLong = "Impressora-da-recepcao-do-3o-a";

TEST(PrinterEntry, HoldsTheNameFromItsFifthCharacter) {
    EXPECT_EQ(printerEntry(7, "Impressão"), "007 Impressão                     ");
    EXPECT_EQ(printerEntry(12, kLong + "balcao"), "012 " + kLong + "balcao");
}

TEST(Printer, OneThatIsThereIsNeverCalledMissing) {
    struct Case {
        const char* what;
        Texts installed;
        std::string recorded;
        Texts meant;
        const char* problem;
    };
    for (const Case& one : {
             Case{"its name", {"Epson", "HP"}, "HP", {"HP"}, ""},
             Case{"a whole name, another begins alike",
                  {kLong + "1", kLong + "2"},
                  kLong + "2",
                  {kLong + "2"},
                  ""},
             Case{"the beginning of one name", {"Epson", kLong + "1"}, kLong, {kLong + "1"}, ""},
             Case{"the beginning that is a name too", {kLong + "1", kLong}, kLong, {kLong}, ""},
             Case{"the beginning of two",
                  {kLong + "1", kLong + "2"},
                  kLong,
                  {kLong + "1", kLong + "2"},
                  "Há mais de uma impressora"},
             Case{"blanks around it", {" HP "}, "HP", {" HP "}, ""},
             Case{"less than 30 characters", {"Epson"}, "Epso", {}, "não foi encontrada"},
         }) {
        SCOPED_TRACE(one.what);
        EXPECT_EQ(printersMeant(one.installed, one.recorded), one.meant);
        EXPECT_THAT(printerProblem(one.installed, one.recorded), HasSubstr(one.problem));
        EXPECT_EQ(printerProblem(one.installed, one.recorded).empty(), one.meant.size() == 1);
    }
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
    TestPrinters printers;
    Impressorar screen{desk.at, printers};
};

TEST_F(Opened, AChoiceIsOneLineAndIsShownAgain) {
    EXPECT_EQ(screen.entries().at(0).substr(0, 13), "001 HP-Balcao");
    EXPECT_EQ(screen.chosen(), "");
    EXPECT_TRUE(screen.use(0));
    EXPECT_EQ(desk.file("ConfigX"), "HP-Balcao\r\n");
    Impressorar reopened(desk.at, printers);
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
    EXPECT_EQ(screen.problem(), "");
    printers.usual = "";
    EXPECT_EQ(screen.problem(), "O sistema não tem impressora padrão.");
}

TEST_F(Opened, TwoThatBeginAlikeAreToldApartByTheirEntries) {
    printers.installed = {kLong + "1", kLong + "2"};
    desk.file("ConfigX") = kLong + "\r\n";
    screen.load();
    EXPECT_NE(screen.entries()[0].substr(4), screen.entries()[1].substr(4));
    EXPECT_EQ(screen.position(), std::nullopt);
    EXPECT_TRUE(screen.use(1));
    EXPECT_EQ(desk.file("ConfigX"), kLong + "2\r\n");
    EXPECT_EQ(screen.position(), 1U);
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
