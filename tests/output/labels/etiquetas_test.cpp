#include "output/labels/etiquetas.h"

#include "tests/support/printing_screen.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct LabelScreen : ::testing::Test {
    testing::TestWorkplace desk;
    testing::TestBrowser browser;
    testing::RecordingEngine engine;
    testing::TestPrinters printers;
    Etiquetas screen{desk.at, {browser, engine, printers}, kMenuLabelSheet};

    LabelScreen() {
        testing::fillPrintingDesk(desk, "01Tilibra");
        screen.load();
    }
    /// The lines of the label at a place of the first page.
    [[nodiscard]] LabelLines label(std::size_t place) {
        LabelLines lines;
        const LabelSheet& sheet = screen.sheet();
        const ReportRow& row = engine.jobs.back().cards.at(0).at(place / sheet.columns);
        for (std::size_t line = 0; line < kMostLabelLines; ++line)
            lines.push_back(row.at(place % sheet.columns * kMostLabelLines + line));
        while (!lines.empty() && lines.back().empty())
            lines.pop_back();
        return lines;
    }
};

TEST_F(LabelScreen, EachSheetHasItsLayoutAndItsScale) {
    desk.file("ConfigX") = "HP-Balcao\r\n";
    savePrintScale(desk.store(),
                   {{"HP-Balcao", "14B"}, {.horizontalScale = 9900, .verticalOffset = -150}});
    screen.load();
    EXPECT_EQ(screen.sheet().name, kMenuLabelSheet);
    screen.tick(0, true);
    struct Case {
        const char* name;
        const char* layout;
        int scale;
    };
    for (const Case& c :
         {Case{"A4250/A4350 - 2 COLUNAS, 5 LINHAS", "etiquet.rpt", 10000},
          Case{"A4263/A4363 - 2 COLUNAS, 7 LINHAS", "etiquete.rpt", 9900},
          Case{"CARTA 66,7 x 25,4 - 3 COLUNAS, 10 LINHAS", "etiqueti.rpt", 10000}}) {
        screen.choices().sheet = labelSheetNamed(c.name).value();
        ASSERT_TRUE(screen.print({}));
        const ReportRequest& request = engine.jobs.back().request;
        EXPECT_EQ(request.layoutName, c.layout);
        EXPECT_EQ(request.alignment.scale.horizontalScale, c.scale);
        EXPECT_EQ(request.alignment.verticalTwips, 0);
        EXPECT_EQ(request.printerName, "HP-Balcao");
        EXPECT_THAT(label(0).at(0), ::testing::StartsWith("01 Admitido em __/__/____"));
    }
}

TEST_F(LabelScreen, TextsAreOfNobodyOrOfEachTickedEmployee) {
    screen.tick(4, true);
    screen.tick(0, true);
    screen.list().tick(0, true);
    screen.list().tick(2, true);
    screen.choices().first = 1;
    screen.load();
    ASSERT_TRUE(screen.print({}));
    EXPECT_THAT(label(0), ElementsAre());
    EXPECT_THAT(label(1).at(0), HasSubstr("Admitido em 01/02/2020"));
    EXPECT_EQ(label(1).at(4), "Data: 15/03/2024");
    EXPECT_THAT(label(2).at(0), HasSubstr("05 A partir de 15/03/2024, o salário"));
    EXPECT_THAT(label(3).at(0), HasSubstr("01 "));
    EXPECT_EQ(label(5), LabelLines());
    screen.choices().day.clear();
    ASSERT_TRUE(screen.print({}));
    EXPECT_EQ(label(1).at(4), "Data: __/__/____");
}

TEST_F(LabelScreen, AddressesHaveTheirCaptions) {
    Employee one = testing::employee("009", "JOÃO DA CONCEIÇÃO");
    one.workBooklet = "12345 00123-SP";
    one.address = "RUA DAS ACÁCIAS, 120";
    one.city = "TAUBATÉ";
    one.state = "SP";
    one.postalCode = "12020-330";
    one.telephone = "(12) 99999-0000";
    EXPECT_THAT(addressLines(one), ElementsAre("NOME: JOÃO DA CONCEIÇÃO", " CTPS: 12345 00123-SP",
                                               "RUA DAS ACÁCIAS, 120", "TAUBATÉ - SP",
                                               "CEP: 12020-330", "TELEFONE: (12) 99999-0000",
                                               "=========================================="));
    for (const auto& field : kEmployeeFields)
        one.*field.member = std::string(field.column.width, 'W');
    EXPECT_EQ(addressLines(one).size(), 8U) << "the longest fits each sheet";
    screen.choices().kind = LabelKind::Addresses;
    EXPECT_FALSE(screen.print({}));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Selecione um Funcionário na Lista!"));
    screen.list().tickShown(true);
    screen.choices().copies = 2;
    ASSERT_TRUE(screen.print({}));
    EXPECT_EQ(label(1).at(0), "NOME: JOSÉ DA SILVA");
    EXPECT_EQ(label(1).at(4), "==========================================");
}

TEST_F(LabelScreen, WhatCannotBePrintedIsToldFirst) {
    EXPECT_FALSE(screen.print({}));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Selecione uma Etiqueta na Lista!"));
    desk.file("01confgctps") =
        encode(LabelText{"07", "Longa",
                         storedLabelText("1\n2\n3\n4\n5\n6\n7\n8\nfunção de ____\n10")}) +
        "\r\n";
    screen.load();
    screen.tick(0, true);
    screen.list().tickShown(true);
    EXPECT_FALSE(screen.print({}));
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].text, "O Texto não Cabe na Etiqueta!");
    EXPECT_THAT(
        desk.person.shown[0].detail,
        HasSubstr("07 Longa, 001 JOSÉ DA SILVA: a linha 9, \"função de ____\", é demais para "
                  "uma etiqueta de 8 linhas."));
    EXPECT_TRUE(engine.jobs.empty());
    screen.choices().sheet = 0;
    EXPECT_TRUE(screen.print({}));
    desk.person.shown.clear();

    engine.outcomes = {testing::RecordingEngine::Outcome::NoPrinter};
    EXPECT_FALSE(screen.print({}));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre(HasSubstr("ERRO NA IMPRESSÃO DO RELATÓRIO")));
    desk.session.folder = DataFolder('D', "/data");
    EXPECT_FALSE(screen.print({}));
    EXPECT_FALSE(screen.printFrames({}));
    EXPECT_FALSE(screen.printStockSheets({}, {}));
    EXPECT_THAT(desk.person.takeTexts(),
                ::testing::Each("Diretório Inválido p/ Impressão! Transfira os dados do diretório "
                                "atual para o Diretório 'C'."));
}

TEST_F(LabelScreen, FramesAndStockSheetsArePrintedToo) {
    screen.choices().output = ReportOutput::Printer;
    EXPECT_FALSE(screen.printFrames({})) << "not agreed";
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.printFrames({}));
    EXPECT_EQ(label(13), LabelLines{"14"});
    EXPECT_EQ(engine.jobs.back().cards.at(0).at(6).back(), "1000");
    for (const auto& [form, layout] : {std::pair(StockForm::Movement, "estoquesa.rpt"),
                                       std::pair(StockForm::Count, "estoquesb.rpt")}) {
        ASSERT_TRUE(screen.printStockSheets({.form = form, .subject = "FARINHA", .sheets = 2}, {}));
        const auto& job = engine.jobs.back();
        EXPECT_EQ(job.request.layoutName, layout);
        EXPECT_EQ(job.request.title, "CONTROLE DE ESTOQUE");
        EXPECT_EQ(job.cards.at(1).at(0).at(3), "2/2");
        EXPECT_EQ(job.cards.at(1).at(0).at(2), "FARINHA");
    }
}

TEST_F(LabelScreen, OneCopyOfNineHundredAndNinetyNineIsMadeAsItIsPrinted) {
    std::vector<Employee> many;
    for (int number = 1; number <= 999; ++number)
        many.push_back(testing::employee(padded(number, 3), "PESSOA " + std::to_string(number)));
    desk.file("01CartaPonto") = testing::employeeList(many);
    screen.load();
    screen.list().tickShown(true);
    screen.choices().kind = LabelKind::Addresses;
    int told = 0;
    EXPECT_FALSE(screen.print({.progress = [&](int done, int total) {
        told = total;
        return done < 3;
    }}));
    EXPECT_EQ(told, 72);
    EXPECT_EQ(engine.jobs.back().cards.size(), 3U);
    EXPECT_EQ(label(13).at(0), "NOME: PESSOA 14");
}

}  // namespace
}  // namespace winvrx
