#include "output/cards/desktop/cartao_window.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/desktop/qt_text.h"
#include "tests/support/employees.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"
#include "timecard/month/selected_month.h"

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QtTest>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using testing::employee;
using testing::employeeList;
using testing::RecordingEngine;
using testing::TestPrinters;
using testing::TestWorkplace;

class CartaoWindowTest : public ::testing::Test {
  protected:
    CartaoWindowTest() {
        Company company;
        company.code = "01";
        company.name = "EMPRESA MODELO LTDA";
        desk.file("01Empresa") = encode(company) + "\r\n";
        desk.file("01CartaPonto") = employeeList(
            {employee("001", "JOSÉ DA SILVA"), employee("002", "ANA PAULA", {.shift = "Dois"})});
        desk.file("01CartaoDePontoTipo") = "01Tilibra\r\n";
        saveSelectedMonth(desk.store(), {std::chrono::year(2024) / 3, ShiftFilter::Todos});
    }

    TestWorkplace desk;
    RecordingEngine engine;
    TestPrinters printers;
    AlignmentMemory alignment;
    testing::TestBrowser browser;
    Cartao cartao{desk.at, {browser, engine, printers}, alignment};
};

TEST_F(CartaoWindowTest, ChoicesReachThePrintedJob) {
    DrivenWindow<CartaoWindow> driven(cartao, CartaoWindowDesk());
    driven.click("cartao.output.printer");
    driven.click("cartao.tray.lateral");
    driven.click("cartao.printHeader");
    const auto& drawing = driven.find<QLabel>("cartao.sheetExitPicture");
    const QImage faceDown = drawing.pixmap().toImage();
    const QString turned = drawing.accessibleName();
    driven.click("cartao.cardOutput.faceUp");
    EXPECT_NE(drawing.pixmap().toImage(), faceDown);
    EXPECT_NE(drawing.accessibleName(), turned);
    driven.type("cartao.printerTray3", "Manual");
    QTest::keyClick(&driven.window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    const ReportRequest& request = engine.jobs[0].request;
    EXPECT_EQ(request.layoutName, "tilibleft.rpt");
    EXPECT_EQ(request.output, ReportOutput::Printer);
    EXPECT_FALSE(request.printHeader);
    EXPECT_EQ(request.exit, SheetExit::FaceUp);
    EXPECT_EQ(request.trays[2], "Manual");
    EXPECT_EQ(engine.jobs[0].cards.size(), 2U);

    driven.click("cartao.mode.oneAtATime");
    desk.person.answers = {Answer::Yes};
    driven.click("cartao.printAll");
    EXPECT_EQ(desk.person.shown.at(0).text, "Confirma a Impressão do Cartão do JOSÉ DA SILVA ? ");
    EXPECT_EQ(engine.jobs.size(), 2U);
}

TEST_F(CartaoWindowTest, SelectedEmployeeIsPreviewedAndPrinted) {
    DrivenWindow<CartaoWindow> driven(cartao, CartaoWindowDesk());
    auto* list = &driven.find<QListWidget>("cartao.employees");
    auto* header = &driven.find<QLabel>("cartao.header");
    list->setCurrentRow(1);
    EXPECT_EQ(header->text(), toQt(cartao.headerPreview(1)));
    EXPECT_TRUE(header->text().startsWith(QStringLiteral("Razão: EMPRESA MODELO LTDA")));
    desk.person.answers = {Answer::Yes};
    QTest::keyClick(list, Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].cards.at(0).at(0)[cardColumn("nome")], "ANA PAULA");
}

TEST_F(CartaoWindowTest, ListFollowsShiftAndSearch) {
    DrivenWindow<CartaoWindow> driven(cartao, CartaoWindowDesk());
    auto* list = &driven.find<QListWidget>("cartao.employees");
    auto* shift = &driven.find<QComboBox>("cartao.shift");
    auto* search = &driven.find<QLineEdit>("cartao.search");
    auto* state = &driven.find<QLabel>("state");
    auto* empty = &driven.find<QLabel>("cartao.empty");
    EXPECT_EQ(state->text(), QStringLiteral("2 cartões · Tilibra · Central · impressora padrão"));
    emit shift->activated(1);
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("002 ANA PAULA"));
    EXPECT_EQ(state->text(), QStringLiteral("1 cartão · Tilibra · Central · impressora padrão"));
    QTest::keyClicks(list, QStringLiteral("jose"));
    EXPECT_EQ(search->text(), QStringLiteral("jose"));
    EXPECT_TRUE(list->item(0)->isHidden());
    EXPECT_EQ(list->currentRow(), -1);
    EXPECT_TRUE(empty->isVisible());
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_FALSE(empty->isVisible());
    EXPECT_TRUE(driven.window.isVisible());
}

TEST_F(CartaoWindowTest, ReturnsFromTheOtherScreensUpToDate) {
    desk.files.content.erase("/data/DataIde.ivc");
    const CartaoWindowDesk links{
        .openStocks =
            [this](QWidget*) {
                desk.file("01CartaoDePontoTipo") = "05\r\n";
                desk.file("01Impresstec") = "Lateral\r\n \r\nManual\r\n\r\n0\r\n";
            },
        .openWorkMonth =
            [this](QWidget*) {
                saveSelectedMonth(desk.store(), {std::chrono::year(2024) / 2, ShiftFilter::Todos});
            }};
    DrivenWindow<CartaoWindow> driven(cartao, links);
    auto* header = &driven.find<QLabel>("cartao.header");
    driven.find<QListWidget>("cartao.employees").setCurrentRow(1);
    EXPECT_FALSE(header->text().contains(QStringLiteral("Período")));
    driven.click("cartao.month");
    EXPECT_TRUE(header->text().contains(QStringLiteral("01/02/2024 a 29/02/2024")));
    driven.click("cartao.stock");
    EXPECT_NE(driven.state().find("MADIS"), std::string::npos);
    EXPECT_TRUE(driven.find<QRadioButton>("cartao.tray.lateral").isChecked());
    EXPECT_FALSE(driven.find<QCheckBox>("cartao.printHeader").isChecked());
    EXPECT_EQ(driven.text("cartao.printerTray2"), "Manual");
    EXPECT_EQ(cartao.choices().printer.trays[1], "Manual");
    EXPECT_EQ(driven.find<QListWidget>("cartao.employees").currentRow(), 1);
}

/// A progress dialog shows by itself after a while, over the question that waits by then, and the
/// question could no longer be answered. So there is none before it is needed.
TEST_F(CartaoWindowTest, NoProgressWaitsBehindAQuestion) {
    DrivenWindow<CartaoWindow> driven(cartao, CartaoWindowDesk());
    int asked = 0;
    desk.person.onAsk = [&] {
        ++asked;
        EXPECT_EQ(driven.window.findChild<QWidget*>(QStringLiteral("cartao.progress")), nullptr);
    };
    driven.click("cartao.output.printer");
    engine.sides = 2;
    desk.person.answers = {Answer::Yes};
    driven.click("cartao.printAll");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(engine.jobs.size(), 2U);
}

TEST_F(CartaoWindowTest, APdfGetsItsEnding) {
    DrivenWindow<CartaoWindow> driven(cartao, CartaoWindowDesk());
    driven.click("cartao.output.pdf");
    QString proposed;
    QTimer::singleShot(0, &driven.window, [&] {
        auto* dialog = driven.window.findChild<QFileDialog*>();
        ASSERT_NE(dialog, nullptr);
        proposed = dialog->selectedFiles().value(0);
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("cartoes"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    driven.click("cartao.printAll");
    EXPECT_TRUE(proposed.endsWith(QStringLiteral("/CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf")));
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_TRUE(toQt(engine.jobs[0].request.pdfPath).endsWith(QStringLiteral("/cartoes.pdf")));
}

/// A person at the keyboard or with a screen reader reaches everything.
void expectReachable(QWidget& window) {
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (widget->objectName().startsWith(QLatin1String("qt_")) || !widget->isVisible()) continue;
        const bool used = qobject_cast<const QAbstractButton*>(widget) ||
                          qobject_cast<const QComboBox*>(widget) ||
                          qobject_cast<const QListWidget*>(widget);
        if (!used || !widget->isEnabled() || qobject_cast<QLineEdit*>(widget->parent())) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        // TAB stops at the chosen one of a group; the arrow keys lead to the others.
        const auto* option = qobject_cast<const QRadioButton*>(widget);
        EXPECT_TRUE((option && !option->isChecked()) || widget->focusPolicy() & Qt::TabFocus)
            << widget->objectName().toStdString();
        EXPECT_TRUE(window.rect().contains(QRect(widget->mapTo(&window, QPoint()), widget->size())))
            << widget->objectName().toStdString();
    }
}

TEST_F(CartaoWindowTest, FitsASmallScreenAndIsReachable) {
    DrivenWindow<CartaoWindow> driven(cartao, CartaoWindowDesk());
    EXPECT_LE(driven.window.minimumSizeHint().width(), 1280);
    EXPECT_LE(driven.window.minimumSizeHint().height(), 680);
    expectReachable(driven.window);
    EXPECT_EQ(driven.sharedAltLetters(), "");
}

}  // namespace
}  // namespace winvrx
