#include "output/cards/desktop/cartao_window.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/desktop/qt_text.h"
#include "tests/support/driven_window.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
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
using testing::RecordingEngine;
using testing::TestBrowser;
using testing::TestLeaves;
using testing::TestPrinters;
using testing::TestWorkplace;

template <typename Widget>
Widget* find(QWidget& window, const char* name) {
    auto* widget = window.findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

/// Presses where an option's mark is.
void press(QWidget& window, const char* name) {
    auto* button = find<QAbstractButton>(window, name);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/// Keys reach the active window only.
void open(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

class CartaoWindowTest : public ::testing::Test {
  protected:
    CartaoWindowTest() {
        Company company;
        company.code = "01";
        company.name = "EMPRESA MODELO LTDA";
        desk.file("01Empresa") = encode(company) + "\r\n";
        desk.file("01CartaPonto") = encode(employee("001", "JOSÉ DA SILVA", "Unico")) + "\r\n" +
                                    encode(employee("002", "ANA PAULA", "Dois")) + "\r\n";
        desk.file("01CartaoDePontoTipo") = "01Tilibra\r\n";
        saveSelectedMonth(desk.store(), {std::chrono::year(2024) / 3, ShiftFilter::Todos});
    }

    static Employee employee(const char* code, const char* name, const char* shift) {
        Employee employee;
        employee.code = code;
        employee.name = name;
        employee.shift = shift;
        return employee;
    }

    TestWorkplace desk;
    TestBrowser browser;
    RecordingEngine engine;
    TestPrinters printers;
    AlignmentMemory alignment;
    TestLeaves leaves;
    Cartao cartao{desk.at, {browser, engine, printers, alignment, leaves}};
};

TEST_F(CartaoWindowTest, ChoicesReachThePrintedJob) {
    CartaoWindow window(cartao, {});
    open(window);
    press(window, "cartao.output.printer");
    press(window, "cartao.tray.lateral");
    press(window, "cartao.printHeader");
    QTest::keyClicks(find<QLineEdit>(window, "cartao.printerTray3"), QStringLiteral("Manual"));
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    const ReportRequest& request = engine.jobs[0].request;
    EXPECT_EQ(request.layoutName, "tilibleft.rpt");
    EXPECT_EQ(request.output, ReportOutput::Printer);
    EXPECT_FALSE(request.printHeader);
    EXPECT_EQ(request.trays[2], "Manual");
    EXPECT_EQ(engine.jobs[0].cards.size(), 2U);

    press(window, "cartao.mode.oneAtATime");
    desk.person.answers = {Answer::Yes};
    press(window, "cartao.printAll");
    EXPECT_EQ(desk.person.shown.at(0).text, "Confirma a Impressão do Cartão do JOSÉ DA SILVA ? ");
    EXPECT_EQ(engine.jobs.size(), 2U);
}

TEST_F(CartaoWindowTest, SelectedEmployeeIsPreviewedAndPrinted) {
    CartaoWindow window(cartao, {});
    open(window);
    auto* list = find<QListWidget>(window, "cartao.employees");
    auto* header = find<QLabel>(window, "cartao.header");
    list->setCurrentRow(1);
    EXPECT_EQ(header->text(), toQt(cartao.headerPreview(1)));
    EXPECT_TRUE(header->text().startsWith(QStringLiteral("Razão: EMPRESA MODELO LTDA")));
    desk.person.answers = {Answer::Yes};
    QTest::keyClick(list, Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].cards.at(0).at(0)[cardColumn("nome")], "ANA PAULA");
}

TEST_F(CartaoWindowTest, ListFollowsShiftAndSearch) {
    CartaoWindow window(cartao, {});
    open(window);
    auto* list = find<QListWidget>(window, "cartao.employees");
    auto* shift = find<QComboBox>(window, "cartao.shift");
    auto* search = find<QLineEdit>(window, "cartao.search");
    auto* state = find<QLabel>(window, "state");
    auto* empty = find<QLabel>(window, "cartao.empty");
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
    EXPECT_TRUE(window.isVisible());
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
    CartaoWindow window(cartao, links);
    open(window);
    auto* header = find<QLabel>(window, "cartao.header");
    find<QListWidget>(window, "cartao.employees")->setCurrentRow(1);
    EXPECT_FALSE(header->text().contains(QStringLiteral("Período")));
    press(window, "cartao.month");
    EXPECT_TRUE(header->text().contains(QStringLiteral("01/02/2024 a 29/02/2024")));
    press(window, "cartao.stock");
    EXPECT_TRUE(find<QLabel>(window, "state")->text().contains(QStringLiteral("MADIS")));
    EXPECT_TRUE(find<QRadioButton>(window, "cartao.tray.lateral")->isChecked());
    EXPECT_FALSE(find<QCheckBox>(window, "cartao.printHeader")->isChecked());
    EXPECT_EQ(find<QLineEdit>(window, "cartao.printerTray2")->text(), QStringLiteral("Manual"));
    EXPECT_EQ(cartao.choices().printer.trays[1], "Manual");
    EXPECT_EQ(find<QListWidget>(window, "cartao.employees")->currentRow(), 1);
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(browser.opened, 1);
}

/// A progress dialog shows by itself after a while, over the question that waits by then, and the
/// question could no longer be answered. So there is none before it is needed.
TEST_F(CartaoWindowTest, NoProgressWaitsBehindAQuestion) {
    CartaoWindow window(cartao, {});
    open(window);
    int asked = 0;
    desk.person.onAsk = [&] {
        ++asked;
        EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("cartao.progress")), nullptr);
    };
    press(window, "cartao.output.printer");
    engine.sides = 2;
    desk.person.answers = {Answer::Yes};
    press(window, "cartao.printAll");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(engine.jobs.size(), 2U);
}

TEST_F(CartaoWindowTest, APdfGetsItsEnding) {
    CartaoWindow window(cartao, {});
    open(window);
    press(window, "cartao.output.pdf");
    QString proposed;
    QTimer::singleShot(0, &window, [&] {
        auto* dialog = window.findChild<QFileDialog*>();
        ASSERT_NE(dialog, nullptr);
        proposed = dialog->selectedFiles().value(0);
        auto* name = find<QLineEdit>(*dialog, "fileNameEdit");
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("cartoes"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    press(window, "cartao.printAll");
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
    CartaoWindow window(cartao, {});
    open(window);
    EXPECT_LE(window.minimumSizeHint().width(), 1280);
    EXPECT_LE(window.minimumSizeHint().height(), 680);
    expectReachable(window);
    EXPECT_EQ(DrivenWindow<CartaoWindow>(cartao, CartaoWindowDesk()).sharedAltLetters(), "");
}

}  // namespace
}  // namespace winvrx
