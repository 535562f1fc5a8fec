#include "output/labels/desktop/criar_etiqueta_window.h"
#include "output/labels/desktop/estoque_window.h"
#include "output/labels/desktop/etiquetas_window.h"
#include "output/labels/desktop/sheet_view.h"
#include "report/desktop/calibration_window.h"
#include "report/print_calibration.h"
#include "tests/support/printing_screen.h"
#include "tests/support/window_driver.h"

#include <QListWidget>
#include <QPlainTextEdit>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct LabelWindows : ::testing::Test {
    testing::TestWorkplace desk;
    testing::TestBrowser browser;
    testing::RecordingEngine engine;
    testing::TestPrinters printers;
    Etiquetas labels{desk.at, {browser, engine, printers}, kMenuLabelSheet};

    LabelWindows() { testing::fillPrintingDesk(desk, "01Tilibra"); }
};

TEST_F(LabelWindows, LabelsArePrintedByTheKeyboardAlone) {
    DrivenWindow<EtiquetasWindow> screen(labels, EtiquetasWindowDesk{});
    EXPECT_EQ(screen.namelessWidgets(), "");
    EXPECT_EQ(screen.sharedAltLetters(), "");
    EXPECT_EQ(screen.focusName(), "etiquetas.texts");
    EXPECT_EQ(screen.state(), "0 etiquetas · 0 folhas · impressora padrão");
    screen.press(Qt::Key_Space);
    EXPECT_EQ(screen.state(), "1 etiqueta · 1 folha · impressora padrão");
    screen.find("etiquetas.employees").setFocus();
    screen.press(Qt::Key_Down);
    screen.press(Qt::Key_Space);
    screen.click("etiquetas.tickAll");
    EXPECT_EQ(screen.state(), "3 etiquetas · 1 folha · impressora padrão");
    screen.type("etiquetas.search", "jose");
    screen.click("etiquetas.untickAll");
    EXPECT_EQ(screen.state(), "2 etiquetas · 1 folha · impressora padrão");
    screen.find("etiquetas.first").setFocus();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_End, Qt::Key_Right, Qt::Key_Left})
        screen.press(key);
    EXPECT_EQ(labels.choices().first, 12U);
    screen.type("etiquetas.copies", "2");
    EXPECT_EQ(screen.state(), "4 etiquetas · 2 folhas · impressora padrão");
    screen.type("etiquetas.copies", "0");
    EXPECT_THAT(screen.hint("etiquetas.copies"), HasSubstr("De 1 a 99"));
    screen.type("etiquetas.day", "31/02/2024");
    screen.press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].request.output, ReportOutput::Preview);
    EXPECT_EQ(engine.jobs[0].request.layoutName, "etiquete.rpt");
    EXPECT_EQ(engine.jobs[0].cards.size(), 1U);
    EXPECT_EQ(labels.choices().day, "") << "no day is no day";
    screen.press(Qt::Key_Escape);
    EXPECT_FALSE(screen.window.isVisible());
}

TEST_F(LabelWindows, TheFirstFreeLabelIsClicked) {
    DrivenWindow<EtiquetasWindow> screen(labels, EtiquetasWindowDesk{});
    auto& sheet = screen.find<SheetView>("etiquetas.first");
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, sheet.areaOf(5).center().toPoint());
    EXPECT_EQ(labels.choices().first, 5U);
    screen.click("etiquetas.sheet.3");
    EXPECT_EQ(labels.sheet().layout, "etiqueti.rpt");
    EXPECT_EQ(labels.choices().first, 0U);
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, sheet.areaOf(29).center().toPoint());
    EXPECT_EQ(labels.choices().first, 29U);
    EXPECT_EQ(sheet.accessibleDescription(), QStringLiteral("Etiqueta 30 de 30"));
}

TEST_F(LabelWindows, ATextIsTypedLineByLine) {
    CriarEtiqueta texts(desk.at);
    DrivenWindow<CriarEtiquetaWindow> screen(texts);
    EXPECT_EQ(screen.namelessWidgets(), "");
    EXPECT_EQ(screen.sharedAltLetters(), "");
    EXPECT_EQ(screen.state(), "1 de 8");
    EXPECT_EQ(screen.hint("criarEtiqueta.text"), "8 linhas: cabe em todas as folhas");
    screen.press(Qt::Key_Insert);
    EXPECT_EQ(screen.text("criarEtiqueta.number"), "09");
    screen.type("criarEtiqueta.title", "FÉRIAS");
    auto& text = screen.find<QPlainTextEdit>("criarEtiqueta.text");
    text.setFocus();
    text.moveCursor(QTextCursor::End);
    for (const char* line : {"GOZOU FÉRIAS DE", "   __/__/____ a __/__/____", ""}) {
        screen.typeHere(line);
        screen.press(Qt::Key_Return);
    }
    screen.typeHere("Assinatura");
    EXPECT_EQ(screen.hint("criarEtiqueta.text"), "4 linhas: cabe em todas as folhas");
    desk.person.answers = {Answer::Yes};
    screen.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(labelLines(loadLabels(desk.store(), *desk.session.company).at(8).record.text),
                ElementsAre("09 GOZOU FÉRIAS DE", "   __/__/____ a __/__/____", "", "Assinatura"));
    desk.person.answers = {Answer::Yes};
    screen.click("criarEtiqueta.undo");
    EXPECT_EQ(texts.count(), 8U);
    text.setPlainText(QStringLiteral("1\n2\n3\n4\n5\n6\n7\n8\n9"));
    EXPECT_EQ(
        screen.hint("criarEtiqueta.text"),
        "⚠ 9 linhas: não cabe em A4263/A4363 - 2 COLUNAS, 7 LINHAS (8); CARTA 66,7 x 25,4 - 3 "
        "COLUNAS, 10 LINHAS (8)");
}

TEST_F(LabelWindows, StockSheetsAndTheCalibrationHaveScreensOfTheirOwn) {
    labels.load();
    DrivenWindow<EstoqueWindow> stock(labels);
    EXPECT_EQ(stock.namelessWidgets(), "");
    EXPECT_EQ(stock.sharedAltLetters(), "");
    stock.click("estoque.form.count");
    stock.type("estoque.subject", "COZINHA");
    stock.type("estoque.sheets", "0");
    stock.click("estoque.print");
    EXPECT_EQ(engine.jobs.size(), 0U);
    stock.type("estoque.sheets", "3");
    stock.click("estoque.print");
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].cards.size(), 3U);
    EXPECT_EQ(engine.jobs[0].cards[2][0][2], "COZINHA");

    PrintCalibration scale(desk.at, engine, "Ajuste");
    scale.load(labels.scaleKey(), {});
    DrivenWindow<CalibrationWindow> calibration(scale, QStringLiteral("A4263"),
                                                QStringLiteral("nesta folha"), nullptr);
    EXPECT_EQ(calibration.namelessWidgets(), "");
    EXPECT_EQ(calibration.label("escala.printer"), "Impressora Epson, nesta folha");
    calibration.type("escala.figure3", "1,5");
    calibration.click("escala.save");
    EXPECT_EQ(loadPrintScale(desk.store(), {"Epson", "14B"}).horizontalOffset, 150);
    calibration.type("escala.figure3", "2");
    calibration.press(Qt::Key_Escape);
    EXPECT_TRUE(calibration.window.isVisible()) << "typed and not recorded";
}

}  // namespace
}  // namespace winvrx
