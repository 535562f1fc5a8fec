#include "personnel/leaves/desktop/afastamento_window.h"

#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/leave_types.h"
#include "tests/support/employee_desk.h"
#include "tests/support/window_driver.h"

#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <memory>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;
using namespace testing;

struct LeaveWindow : ::testing::Test {
    EmployeeDesk desk;
    Afastamento command{desk.at, desk.locks};
    std::unique_ptr<DrivenWindow<AfastamentoWindow>> screen;
    int monthOpened = 0;

    void SetUp() override {
        Employee ana = EmployeeDesk::employee("001", "ANA");
        ana.admission = "10/01/2022";
        desk.record("01", {ana, EmployeeDesk::employee("002", "BIA")});
        desk.file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
    }
    void open() {
        (void)command.open();
        screen = std::make_unique<DrivenWindow<AfastamentoWindow>>(command);
        QObject::connect(&screen->window, &AfastamentoWindow::monthRequested, &screen->window,
                         [this] { ++monthOpened; });
    }
    [[nodiscard]] QTreeWidget& leaves() { return screen->find<QTreeWidget>("leaves.list"); }
    /// ENTER after each text, where the focus is.
    void typeOn(std::initializer_list<const char*> texts) {
        for (const char* text : texts) {
            screen->typeHere(text);
            screen->press(Qt::Key_Return);
        }
    }
};

TEST_F(LeaveWindow, RecordsALeaveWithTheKeyboardAlone) {
    open();
    EXPECT_EQ(screen->namelessWidgets(), "");
    EXPECT_EQ(screen->sharedAltLetters(), "");
    EXPECT_EQ(screen->focusName(), "leaves.employees");
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "leaves.type");
    desk.person.answers = {Answer::Yes};
    typeOn({"007", "11032024", "3"});
    EXPECT_EQ(screen->text("leaves.lastDay"), "13/03/2024");
    EXPECT_EQ(screen->state(), "Alterações não gravadas");
    typeOn({"", ""});
    EXPECT_THAT(desk.file("01configAf001"), StartsWith("007 ATESTADO_DECALRA\xC7\xC3O"));
    EXPECT_EQ(leaves().topLevelItemCount(), 1);
    EXPECT_EQ(screen->focusName(), "leaves.list");
    EXPECT_EQ(screen->find<QRadioButton>("leaves.withLeaves").text().toStdString(),
              "Todos com Registro de Afastamento (1)");
    EXPECT_THAT(screen->label("leaves.legend"), HasSubstr("7 ATESTADO DECALRAÇÃO"));

    screen->press(Qt::Key_Insert);
    EXPECT_EQ(screen->focusName(), "leaves.type");
    typeOn({"006", "13032024"});
    EXPECT_EQ(screen->focusName(), "leaves.days");
    typeOn({"1"});
    EXPECT_EQ(screen->label("leaves.period"),
              "⚠ Coincide com 007 ATESTADO_DECALRAÇÃO, de 11/03/2024 a 13/03/2024.");
    desk.person.shown.clear();
    desk.person.answers = {Answer::No};
    screen->press(Qt::Key_Escape);
    EXPECT_TRUE(screen->window.isVisible()) << "what is typed would be lost";
    desk.person.answers = {Answer::Yes};
    screen->press(Qt::Key_PageDown);
    EXPECT_EQ(screen->label("leaves.name"), "002 BIA");
    EXPECT_EQ(screen->text("leaves.firstDay"), "");
}

TEST_F(LeaveWindow, EndsAContractWithDatesThatCanBeTypedOver) {
    open();
    screen->press(Qt::Key_Return);
    typeOn({"008", "15032024"});
    screen->find("leaves.terminationType").setFocus();
    typeOn({"01", "02"});
    EXPECT_EQ(screen->text("leaves.noticeEnds"), "20/04/2024");
    EXPECT_EQ(screen->text("leaves.lastDay"), "20/04/2024");
    EXPECT_EQ(screen->hint("leaves.noticeType"), "30 + 3 × 2 anos = 36 dias, Lei 12.506/2011");
    screen->type("leaves.lastDayWorked", "20032024");
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->text("leaves.lastDayWorked"), "20/03/2024");
    EXPECT_THAT(screen->hint("leaves.lastDayWorked"),
                StartsWith("✎ Digitado no lugar de 15/03/2024: "));
    EXPECT_EQ(screen->text("leaves.paymentDue"), "30/03/2024");
    screen->type("leaves.noticeBegins", "31022024");
    desk.person.answers = {Answer::Yes};
    screen->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk.person.takeTexts().back(), "Data Incorreta.");
    EXPECT_EQ(screen->focusName(), "leaves.noticeBegins");
    EXPECT_THAT(screen->hint("leaves.noticeBegins"), HasSubstr("não existe"));
    screen->type("leaves.noticeBegins", "16032024");
    desk.person.answers = {Answer::Yes};
    screen->press(Qt::Key_S, Qt::ControlModifier);
    desk.person.answers = {Answer::Yes};
    screen->press(Qt::Key_F9);
    EXPECT_THAT(desk.file("01configAf001"), ::testing::EndsWith("**** 20/04/2024\r\n"));
    std::string line;
    for (int column = 0; column < leaves().columnCount(); ++column)
        line += leaves().topLevelItem(0)->text(column).toStdString() + "|";
    EXPECT_EQ(line,
              "008 RESCISÃO_CONTRATO_TRABALHO|15/03/2024|20/04/2024|037 Dias e 0 Horas|"
              "15/03/2024|16/03/2024|01. Dispensa sem Justa Causa|02. Aviso Indenizado|"
              "20/04/2024|20/03/2024|30/03/2024||");
    EXPECT_EQ(screen->find<QToolButton>("leaves.activation").text().toStdString(), "Reativar  F9");
    EXPECT_TRUE(screen->find<QLineEdit>("leaves.dismissal").isReadOnly());
    EXPECT_FALSE(screen->find<QLabel>("leaves.contradiction").isVisible());

    desk.file("01configAf001") += "**** 21/04/2024\r\n";
    screen->press(Qt::Key_PageDown);
    screen->press(Qt::Key_PageUp);
    EXPECT_THAT(screen->label("leaves.contradiction"), HasSubstr("20/04/2024"));
}

TEST_F(LeaveWindow, ARefusedChoiceLeavesNothingChosen) {
    desk.file("01configAf001") = "006 F\xC9RIAS" + std::string(20, ' ') +
                                 "01/03/2024  05/03/2024  005 Dias e 0 Horas\r\n**** \r\n";
    open();
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "leaves.list");
    desk.locks.closed = {"001"};
    leaves().setCurrentItem(leaves().topLevelItem(0));
    QApplication::processEvents();
    EXPECT_EQ(leaves().currentItem(), nullptr);
    EXPECT_EQ(screen->text("leaves.firstDay"), "");
    desk.locks.closed.clear();
    leaves().setCurrentItem(leaves().topLevelItem(0));
    QApplication::processEvents();
    EXPECT_EQ(screen->text("leaves.lastDay"), "05/03/2024");
    EXPECT_EQ(screen->text("leaves.days"), "5");
    screen->click("leaves.year.right");
    EXPECT_EQ(screen->label("leaves.year"), "Afastamentos de 2025");
    EXPECT_THAT(screen->label("leaves.legend"), HasSubstr("Nenhum"));
    screen->press(Qt::Key_F7);
    EXPECT_EQ(monthOpened, 1);
}

TEST_F(LeaveWindow, AsksForTheMonthFirst) {
    desk.files.content.erase("/data/DataIde.ivc");
    open();
    EXPECT_THAT(screen->label("leaves.empty"), HasSubstr("mês de trabalho"));
    screen->press(Qt::Key_Insert);
    EXPECT_EQ(desk.person.takeTexts().back(), "Selecione um Funcionário na Lista!");
}

}  // namespace
}  // namespace winvrx
