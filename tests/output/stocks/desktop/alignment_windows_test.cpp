#include "output/stocks/card_rows.h"
#include "output/stocks/desktop/cartao_pontos_window.h"
#include "report/desktop/impressorar_window.h"
#include "report/desktop/layout_reader.h"
#include "report/desktop/qt_report_engine.h"
#include "report/impressorar.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using ::testing::IsEmpty;
using testing::RecordingEngine;
using testing::TestPrinters;
using testing::TestWorkplace;

Layout shippedLayout(const std::string& name) {
    return loadLayout(layoutFolders({}, QCoreApplication::applicationDirPath().toStdString()), name,
                      cardColumns());
}

struct AlignmentWindow : ::testing::Test {
    AlignmentWindow() { desk.file("01CartaoDePontoTipo") = "01Tilibra\r\n"; }

    TestWorkplace desk;
    RecordingEngine engine;
    TestPrinters printers;
    AlignmentMemory memory;
    CartaoPontos screen{desk.at, {engine, printers, memory}};

    /// Where the leftmost and the topmost black dot of the sample lies, in dots of the paper.
    static QPoint firstInk(DrivenWindow<CartaoPontosWindow>& driven) {
        const QImage page = driven.find<QWidget>("sample.page").grab().toImage();
        QPoint first(page.width(), page.height());
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (qGray(page.pixel(x, y)) < 60)
                    first = {std::min(first.x(), x), std::min(first.y(), y)};
        return first;
    }
};

TEST_F(AlignmentWindow, TheSampleMovesWithTheOffsets) {
    DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
    const QPoint before = firstInk(driven);
    for (int press = 0; press < 40; ++press)
        driven.click("alinhamento.right");
    for (int press = 0; press < 20; ++press)
        driven.press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(driven.find<QLineEdit>("alinhamento.horizontal").text(), QStringLiteral("810"));
    EXPECT_EQ(driven.find<QLineEdit>("alinhamento.vertical").text(), QStringLiteral("410"));
    EXPECT_EQ(loadOffsets(desk.store())[0], (Offsets{410, 810}));
    const double dotsPerTwip = driven.find<QWidget>("sample.page").width() / (210 / 25.4 * 1440);
    const QPoint moved = firstInk(driven) - before;
    constexpr double kDot = 1.5;
    EXPECT_NEAR(moved.x(), 800 * dotsPerTwip, kDot);
    EXPECT_NEAR(moved.y(), 400 * dotsPerTwip, kDot);

    desk.person.answers = {Answer::Yes};
    driven.click("cartaoPontos.reset");
    EXPECT_EQ(firstInk(driven), before);
    EXPECT_EQ(driven.find<QLineEdit>("alinhamento.horizontal").text(), QStringLiteral("10"));
}

TEST_F(AlignmentWindow, TheSampleLeavesTheHeaderToTheStockAsThePrintDoes) {
    const auto top = [this] {
        DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
        return firstInk(driven).y();
    };
    const int withHeader = top();
    savePrinterMemory(desk.store(), *desk.session.company, {.printHeader = false});
    EXPECT_GT(top(), withHeader);
}

TEST_F(AlignmentWindow, TypedLineOffsetIsAnsweredAndMovesTheSample) {
    DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
    const QPoint before = firstInk(driven);
    auto& lines = driven.find<QComboBox>("alinhamento.lines");
    EXPECT_EQ(lines.count(), 11);
    const auto type = [&](const char* text) {
        lines.lineEdit()->setFocus();
        lines.lineEdit()->selectAll();
        QTest::keyClicks(lines.lineEdit(), QString::fromUtf8(text));
        QTest::keyClick(lines.lineEdit(), Qt::Key_Tab);
        return lines.currentText().toStdString();
    };
    EXPECT_EQ(type("11 Linhas"), "1 Linha");
    EXPECT_EQ(memory.lines, 1);
    EXPECT_GT(firstInk(driven).y(), before.y());
    EXPECT_EQ(type("7 Linhas"), "7 Linhas");
    EXPECT_EQ(memory.lines, 7);
    lines.setCurrentIndex(3);
    emit lines.textActivated(lines.currentText());
    EXPECT_EQ(memory.lines, 3);
    lines.lineEdit()->setFocus();
    lines.lineEdit()->selectAll();
    QTest::keyClick(lines.lineEdit(), Qt::Key_Delete);
    QTest::keyClick(lines.lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(lines.currentText(), QStringLiteral("nenhuma"));
    EXPECT_EQ(firstInk(driven), before);
}

TEST_F(AlignmentWindow, TypedLineOffsetCountsBeforeItsFieldIsLeft) {
    DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
    auto& lines = *driven.find<QComboBox>("alinhamento.lines").lineEdit();
    const auto typeAndPress = [&](const char* text, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        lines.setFocus();
        lines.selectAll();
        QTest::keyClicks(&lines, QString::fromUtf8(text));
        driven.press(key, modifiers);
    };
    desk.person.answers = {Answer::Yes};
    typeAndPress("5 Linhas", Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].request.alignment.lines, 5);
    typeAndPress("6 Linhas", Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(memory.lines, 6);
    EXPECT_EQ(screen.offsets().vertical, 30);
    typeAndPress("8 Linhas", Qt::Key_Escape, {});
    EXPECT_FALSE(driven.window.isVisible());
    EXPECT_EQ(memory.lines, 8);
}

TEST_F(AlignmentWindow, TypedScaleStaysUntilItIsRecorded) {
    DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
    auto& tabs = driven.find<QTabWidget>("cartaoPontos.tabs");
    const auto typed = [&] {
        return driven.find<QLineEdit>("escala.figure1").text().toStdString();
    };
    tabs.setCurrentIndex(1);
    driven.type("escala.figure1", "150");
    driven.click("escala.save");
    EXPECT_EQ(desk.person.takeTexts(), std::vector<std::string>{"Dados incorretos!"});
    EXPECT_EQ(typed(), "150");
    driven.type("escala.figure1", "101,5");
    tabs.setCurrentIndex(0);
    driven.click("alinhamento.right");
    EXPECT_EQ(typed(), "101,5");
    tabs.setCurrentIndex(1);
    driven.click("escala.save");
    EXPECT_EQ(screen.calibration().scale().horizontalScale, 10150);
    EXPECT_EQ(typed(), "101,50");
}

TEST_F(AlignmentWindow, AnEntryIsShownWithItsOffsetsAndAMissingLayoutSaidSo) {
    saveOffsets(desk.store(), 15, {70, 90});
    DrivenWindow<CartaoPontosWindow> driven(screen, [](const std::string& name) {
        if (name != "tilibcenter.rpt") throw LayoutFault(name, "not found");
        return shippedLayout(name);
    });
    auto& entries = driven.find<QTreeWidget>("cartaoPontos.entries");
    EXPECT_EQ(entries.topLevelItemCount(), 16);
    EXPECT_EQ(entries.topLevelItem(15)->text(1), QStringLiteral("70"));
    QTest::keyClick(&entries, Qt::Key_End);
    EXPECT_EQ(driven.find<QLineEdit>("alinhamento.horizontal").text(), QStringLiteral("90"));
    EXPECT_EQ(driven.label("sample.problem"),
              "⚠ O layout RHJcenter.rpt não pôde ser aberto: not found.");
    driven.click("alinhamento.right");
    EXPECT_EQ(entries.topLevelItem(15)->text(2), QStringLiteral("110"));
    QTest::keyClick(&entries, Qt::Key_Home);
    EXPECT_GT(driven.find<QWidget>("sample.page").width(), 0);
}

TEST_F(AlignmentWindow, ScaleIsTypedMeasuredAndNotLostByLeaving) {
    DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
    driven.openTab("cartaoPontos.tabs", "calibração");
    EXPECT_EQ(driven.label("escala.printer"), "Impressora Epson, neste tipo de cartão");
    driven.type("escala.figure1", "99,5");
    driven.press(Qt::Key_Escape);
    EXPECT_TRUE(driven.window.isVisible()) << "asked before the figure is left behind";
    driven.click("escala.save");
    EXPECT_EQ(screen.calibration().scale().horizontalScale, 9950);
    for (const auto& [field, text] :
         {std::pair("escala.distance1", "30,5"), std::pair("escala.distance2", "180,5"),
          std::pair("escala.distance3", "30"), std::pair("escala.distance4", "260")})
        driven.type(field, text);
    driven.click("escala.calibrate");
    EXPECT_EQ(screen.calibration().scale(), (PrintScale{.horizontalOffset = -50}));
    EXPECT_EQ(driven.find<QLineEdit>("escala.figure3").text(), QStringLiteral("-0,50"));
    EXPECT_EQ(driven.find<QLineEdit>("escala.distance1").text(), QString());
    desk.person.answers = {Answer::Yes};
    driven.click("escala.sheet");
    EXPECT_EQ(engine.jobs.at(0).request.layoutName, kCalibrationLayout);
    EXPECT_THAT(driven.namelessWidgets(), IsEmpty());
    EXPECT_LE(driven.window.minimumSizeHint().width(), 1240);
    EXPECT_LE(driven.window.minimumSizeHint().height(), 690);
    driven.press(Qt::Key_Escape);
    EXPECT_FALSE(driven.window.isVisible());
}

TEST_F(AlignmentWindow, EachAltLetterLeadsToOnePlace) {
    DrivenWindow<CartaoPontosWindow> driven(screen, shippedLayout);
    EXPECT_EQ(driven.sharedAltLetters(), "");
    driven.openTab("cartaoPontos.tabs", "calibração");
    EXPECT_EQ(driven.sharedAltLetters(), "");
    Impressorar choice(desk.at, printers);
    EXPECT_EQ(DrivenWindow<ImpressorarWindow>(choice).sharedAltLetters(), "");
}

TEST_F(AlignmentWindow, PrinterIsChosenByOptionAndList) {
    Impressorar choice(desk.at, printers);
    DrivenWindow<ImpressorarWindow> driven(choice);
    auto& list = driven.find<QListWidget>("impressorar.printers");
    EXPECT_EQ(driven.label("subtitle"), "Em uso: impressora padrão");
    driven.click("impressorar.kind.installed");
    EXPECT_FALSE(desk.files.exists("/data/ConfigX")) << "no printer is picked yet";
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(desk.file("ConfigX"), "HP-Balcao\r\n");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(desk.file("ConfigX"), "Epson\r\n");
    printers.installed = {"Epson"};
    QTest::keyClick(&list, Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.person.takeTexts(), std::vector<std::string>{"ERRO AO IMPRIMIR"});
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.currentRow(), 0);
    driven.click("impressorar.kind.default");
    EXPECT_EQ(desk.file("ConfigX"), "Padrao\r\n");
    driven.click("impressorar.add");
    EXPECT_EQ(printers.opened, 1);
    printers.installed = {};
    driven.press(Qt::Key_F5);
    EXPECT_TRUE(driven.find<QLabel>("impressorar.empty").isVisible());
    EXPECT_EQ(driven.label("state"), "⚠ O sistema não tem impressora padrão.");
    EXPECT_THAT(driven.namelessWidgets(), IsEmpty());
}

/// A message closed makes the window active again: one told then would never end.
TEST_F(AlignmentWindow, AChoiceThatCannotBeReadIsToldOnce) {
    desk.file("ConfigX") = "Epson\r\n";
    desk.files.failOn = {"ConfigX"};
    Impressorar choice(desk.at, printers);
    DrivenWindow<ImpressorarWindow> driven(choice);
    EXPECT_EQ(desk.person.takeTexts(), std::vector<std::string>{"Dados incorretos!"});
    printers.installed = {"Epson"};
    QEvent activated(QEvent::ActivationChange);
    QCoreApplication::sendEvent(&driven.window, &activated);
    EXPECT_THAT(desk.person.takeTexts(), IsEmpty());
    EXPECT_EQ(driven.find<QListWidget>("impressorar.printers").count(), 1);
}

}  // namespace
}  // namespace winvrx
