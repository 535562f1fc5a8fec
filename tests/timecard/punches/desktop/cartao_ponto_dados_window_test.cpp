#include "timecard/punches/desktop/cartao_ponto_dados_window.h"

#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"
#include "timecard/month/selected_month.h"
#include "timecard/punches/desktop/punch_grid.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCompleter>
#include <QListWidget>

#include <functional>
#include <utility>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using testing::employee;
using testing::employeeList;
using testing::TestPunchDesk;
using testing::TestWorkplace;

const std::string kPunches = "01001-03-2024.bdx";

/// The window over March 2024 with two employees.
struct CardWindow : ::testing::Test {
    TestWorkplace desk;
    TestPunchDesk asked;
    CartaoPontoDados command{desk.at, asked.desk};
    int monthOpened = 0;
    std::unique_ptr<DrivenWindow<CartaoPontoDadosWindow>> driven;

    void SetUp() override {
        desk.file("01CartaPonto") =
            employeeList({employee("001", "ANA", {.admission = ""}),
                          employee("002", "JOSÉ", {.shift = "Dois", .admission = ""})});
        desk.file("01PadrHor001.pdx") = "08:0012:0013:0017:00";
        saveSelectedMonth(desk.store(), {*parseMonthKey("03-2024"), ShiftFilter::Todos});
    }

    void open() {
        ASSERT_TRUE(command.open());
        driven = std::make_unique<DrivenWindow<CartaoPontoDadosWindow>>(command);
        QObject::connect(&driven->window, &CartaoPontoDadosWindow::monthSettingsRequested,
                         &driven->window, [this] { ++monthOpened; });
    }

    [[nodiscard]] PunchGrid& grid(int half) {
        return driven->find<PunchGrid>(half == 1 ? "card.half1" : "card.half2");
    }
    [[nodiscard]] std::string cell(int half, int row, int column) {
        return grid(half).model()->index(row, column).data().toString().toStdString();
    }
    /// Types into the cell under the cursor and ends with `key`.
    void enter(const char* text, Qt::Key key = Qt::Key_Return) {
        for (const char* c = text; *c; ++c) {
            QWidget* focus = QApplication::focusWidget();
            QTest::keyClick(focus, *c);
        }
        driven->press(key);
        QCoreApplication::processEvents();
    }
};

TEST_F(CardWindow, TypingFillsCellAfterCellAndRowAfterRow) {
    open();
    grid(1).goToStart();
    for (const char* typed : {"8", "1200", "13:0", "17,30"})
        enter(typed);
    EXPECT_EQ(cell(1, 0, 1), "08:00");
    EXPECT_EQ(cell(1, 0, 2), "12:00");
    EXPECT_EQ(cell(1, 0, 3), "13:00");
    EXPECT_EQ(cell(1, 0, 4), "17:30");
    EXPECT_EQ(cell(1, 0, PunchModel::Total), "08:30");
    EXPECT_EQ(driven->label("card.heading1"), "1º Quinzena  ·  08:30");
    EXPECT_EQ(grid(1).currentIndex(), grid(1).model()->index(3, 1)) << "on Monday";
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(desk.file(kPunches), ::testing::HasSubstr("\r\n01/sex/mar08:0012:0013:0017:30"));
    EXPECT_EQ(driven->label("state"),
              "Ponto gravado  ·  ENTER: próxima hora · Home: primeira · End: situação · "
              "Ctrl+F: funcionários");
}

TEST_F(CardWindow, TheTabKeyMovesOnWhenItIsChosen) {
    open();
    driven->click("card.useTab");
    grid(1).goToStart();
    enter("8", Qt::Key_Tab);
    enter("", Qt::Key_Tab);
    EXPECT_EQ(cell(1, 0, 1), "08:00");
    EXPECT_EQ(grid(1).currentIndex(), grid(1).model()->index(0, 3));
}

TEST_F(CardWindow, AWrongTimeStaysInItsCellAndIsNotRecorded) {
    open();
    grid(1).goToStart();
    enter("2500");
    EXPECT_EQ(cell(1, 0, 1), "⚠ 2500");
    EXPECT_EQ(driven->label("state"), "⚠ \"2500\" não é uma hora de 00:00 a 23:59.");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk.person.shown.back().title, "DIGITAÇÃO DO PONTO");
    EXPECT_FALSE(desk.files.content.contains("/data/" + kPunches));
    EXPECT_EQ(cell(1, 0, 1), "⚠ 2500");
    driven->press(Qt::Key_Delete);
    EXPECT_EQ(cell(1, 0, 1), "");
}

TEST_F(CardWindow, WithoutAMonthOrAnEmployeeEachCommandSaysWhatIsMissing) {
    desk.file("01CartaPonto").clear();
    const std::string chosen = std::exchange(desk.file("DataIde.ivc"), "");
    for (const bool month : {false, true}) {
        if (month) desk.file("DataIde.ivc") = chosen;
        EXPECT_EQ(command.open(), month);
        driven = std::make_unique<DrivenWindow<CartaoPontoDadosWindow>>(command);
        desk.person.shown.clear();
        driven->press(Qt::Key_F9);
        driven->press(Qt::Key_F9, Qt::ShiftModifier);
        grid(1).goToStart();
        enter("8");
        if (month)
            EXPECT_THAT(desk.person.takeTexts(),
                        ::testing::ElementsAre("Selecione um Funcionário na Lista!",
                                               "Selecione Outro ITEM!!!",
                                               "Selecione um Funcionário na Lista!"));
        else
            EXPECT_THAT(desk.person.takeTexts(),
                        ::testing::ElementsAre("Informe um Mês de Trabalho!!",
                                               "Informe um Mês de Trabalho!!",
                                               "Informe um Mês de Trabalho!!"));
    }
}

TEST_F(CardWindow, BesideTheOtherHalfTheOneWithTheCursorSpeaks) {
    open();
    driven->window.resize(2400, 1000);
    QCoreApplication::processEvents();
    ASSERT_TRUE(grid(1).isVisible() && grid(2).isVisible());
    grid(2).setFocus();
    grid(2).setCurrentIndex(grid(2).model()->index(2, 1));
    enter("2500");
    grid(2).setCurrentIndex(grid(2).model()->index(2, 1));
    EXPECT_EQ(driven->label("state"), "⚠ \"2500\" não é uma hora de 00:00 a 23:59.");
    driven->press(Qt::Key_F6);
    EXPECT_TRUE(grid(1).hasFocus());
}

TEST_F(CardWindow, TypingASituationReplacesTheOneThatStands) {
    open();
    for (const char* typed : {"atestado", "fal"}) {
        grid(1).setFocus();
        grid(1).setCurrentIndex(grid(1).model()->index(3, PunchModel::Situation));
        enter(typed);
    }
    EXPECT_EQ(cell(1, 3, PunchModel::Situation), "Falta");
}

TEST_F(CardWindow, AnAbsenceTakesTheTimesOutAndSaysSo) {
    desk.file(kPunches) = "  \r\n04/seg/mar08:0012:00\r\n";
    open();
    grid(1).setFocus();
    grid(1).setCurrentIndex(grid(1).model()->index(3, PunchModel::Situation));
    enter("fal");
    EXPECT_EQ(cell(1, 3, 1) + cell(1, 3, PunchModel::Situation), "Falta");
    EXPECT_EQ(driven->label("state"),
              "Falta: as horas de 04/seg/mar saíram; Ctrl+Z as traz de volta.");
    driven->press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 3, 1) + cell(1, 3, PunchModel::Situation), "08:00");
    EXPECT_THAT(driven->label("state"), ::testing::StartsWith("Ponto gravado"));
}

TEST_F(CardWindow, WhatStandsInAnOpenEditorIsNotLost) {
    open();
    grid(1).goToStart();
    QTest::keyClick(&grid(1), '8');
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(desk.file(kPunches), ::testing::HasSubstr("\r\n01/sex/mar08:00"));
    grid(1).goToStart();
    QTest::keyClick(&grid(1), '9');
    driven->press(Qt::Key_PageDown);  // answered Cancel
    EXPECT_EQ(command.selectedPosition(), 0U);
    EXPECT_EQ(cell(1, 0, 1), "09:00");
    grid(1).goToStart();
    QTest::keyClick(&grid(1), '7');
    driven.reset();  // with the cell still open
    EXPECT_EQ(command.sheet().text(1, PunchCell::MorningEntry), "07:00");
}

TEST_F(CardWindow, F6ChangesTheHalfAndAWideWindowShowsBoth) {
    open();
    EXPECT_TRUE(grid(1).isVisible());
    EXPECT_FALSE(grid(2).isVisible());
    driven->press(Qt::Key_F6);
    EXPECT_FALSE(grid(1).isVisible());
    ASSERT_TRUE(grid(2).isVisible());
    EXPECT_EQ(cell(2, 0, 0), "16/sáb/mar");
    EXPECT_EQ(grid(2).model()->rowCount(), 16);
    driven->window.resize(1920, 1000);
    EXPECT_TRUE(grid(1).isVisible());
    driven->window.resize(1280, 720);
    EXPECT_FALSE(grid(1).isVisible());
    grid(2).setCurrentIndex(grid(2).model()->index(15, PunchModel::Situation));
    enter("");
    EXPECT_TRUE(grid(1).isVisible());
}

TEST_F(CardWindow, ApplicationShowsTheFilledMonth) {
    open();
    const std::string open =
        "Ponto ainda não aplicado neste mês  ·  ENTER: horas do dia · Ctrl+F9: aplicar e ir ao "
        "próximo";
    EXPECT_EQ(driven->label("state"), open);
    EXPECT_EQ(cell(1, 2, PunchModel::Situation), "(descanso)");
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_F9);
    EXPECT_EQ(cell(1, 0, 1), "08:00");
    EXPECT_EQ(cell(1, 2, PunchModel::Situation), "DESCANSO SEMANAL");
    EXPECT_EQ(driven->label("schedule.weekly"), "40,0 HORAS SEMANAIS");
    auto& list = driven->find<QListWidget>("card.employees");
    for (const auto& [answer, row] : {std::pair(Answer::Cancel, 0), std::pair(Answer::Ok, 1)}) {
        desk.person.answers = {answer, Answer::Yes};
        driven->press(Qt::Key_F9, Qt::ControlModifier);
        EXPECT_EQ(list.currentRow(), row);
    }
    EXPECT_EQ(driven->label("state"), open);
}

TEST_F(CardWindow, AnotherEmployeeComesOnlyAfterTheChangesAreSettled) {
    open();
    driven->type("schedule.time1", "7");
    driven->press(Qt::Key_PageDown);  // answered Cancel
    auto& list = driven->find<QListWidget>("card.employees");
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(driven->find<QLineEdit>("schedule.time1").text(), QStringLiteral("07:00"));
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_PageDown);
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(desk.file("01PadrHor001.pdx").substr(0, 5), "07:00");
    EXPECT_EQ(driven->find<QLineEdit>("schedule.time1").text(), QString());
}

TEST_F(CardWindow, SearchAndShiftNarrowTheList) {
    open();
    auto& list = driven->find<QListWidget>("card.employees");
    driven->type("card.search", "jose");
    EXPECT_TRUE(list.item(0)->isHidden());
    EXPECT_FALSE(list.item(1)->isHidden());
    driven->type("card.search", "x");
    auto& shift = driven->find<QComboBox>("card.shift");
    shift.setCurrentIndex(3);
    emit shift.activated(3);
    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(command.selected()->name, "JOSÉ");
}

TEST_F(CardWindow, TheMonthIsChangedOnlyAfterTheChangesAreSettled) {
    open();
    driven->type("schedule.time1", "7");
    driven->press(Qt::Key_F7);  // answered Cancel
    EXPECT_EQ(monthOpened, 0);
    desk.person.answers = {Answer::No};
    driven->press(Qt::Key_F7);
    EXPECT_EQ(monthOpened, 1);
}

TEST_F(CardWindow, EveryWidgetHasAName) {
    open();
    EXPECT_THAT(driven->namelessWidgets(), ::testing::IsEmpty());
}

TEST_F(CardWindow, WhatIsNotUnderstoodIsShownAndKept) {
    const std::string damaged =
        "  \r\n01/sex/marfolga12:00\r\nanota\xE7\xE3o\r\n01/sex/mar07:00\r\n";
    desk.file(kPunches) = damaged;
    open();
    const auto& unread = driven->find<QLabel>("card.unread");
    EXPECT_EQ(unread.text().toStdString(),
              "⚠ 2 linhas não entendidas, mantidas no registro: anotação …");
    EXPECT_EQ(unread.toolTip().toStdString(), "anotação\n01/sex/mar07:00");
    EXPECT_EQ(cell(1, 0, 1), "⚠ folga");
    EXPECT_EQ(cell(1, 0, 2), "12:00");
    EXPECT_EQ(desk.file(kPunches), damaged);
    driven->find<QListWidget>("card.employees").setCurrentRow(1);
    EXPECT_EQ(unread.text(), QString());
}

TEST_F(CardWindow, EditsAreTakenBackAndMadeAgain) {
    open();
    grid(1).goToStart();
    enter("8");
    driven->press(Qt::Key_F6);
    EXPECT_TRUE(grid(2).isVisible());
    driven->press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 0, 1), "");
    EXPECT_TRUE(grid(1).isVisible());  // where the edit was
    EXPECT_FALSE(command.changed());
    driven->press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 0, 1), "08:00");
}

TEST_F(CardWindow, BlocksAreExchangedWithASpreadsheet) {
    open();
    grid(1).goToStart();
    QApplication::clipboard()->setText(QStringLiteral("8\t12:00:00\n9\t1300\n"));
    driven->press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 1, 2), "13:00");
    auto* selection = grid(1).selectionModel();
    selection->select(
        QItemSelection(grid(1).model()->index(0, PunchModel::Day), grid(1).model()->index(1, 2)),
        QItemSelectionModel::ClearAndSelect);
    driven->press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("08:00\t12:00\n09:00\t13:00"));
    driven->press(Qt::Key_Delete);
    EXPECT_EQ(cell(1, 0, 1) + cell(1, 1, 2), "");
    driven->press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 1, 2), "13:00");

    QApplication::clipboard()->setText(QStringLiteral("1\t2\t3\t4\t5\t6\t7\t8\t9"));
    driven->press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desk.person.shown.back().title, "DIGITAÇÃO DO PONTO");
    EXPECT_EQ(desk.person.shown.back().detail,
              "O bloco tem 9 colunas; a partir desta célula cabem 8.");
    EXPECT_EQ(cell(1, 0, 1), "08:00");
}

TEST_F(CardWindow, ADoubtfulDayIsMarkedAndItsReasonSaid) {
    open();
    grid(1).goToStart();
    for (const char* typed : {"8", "12", "1130", "17"})
        enter(typed);
    EXPECT_EQ(cell(1, 0, PunchModel::Day), "⚠01/sex/mar");
    EXPECT_EQ(driven->label("state"), "⚠ 01/sex/mar: Manhã e Tarde: os horários se sobrepõem.");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(desk.file(kPunches), ::testing::HasSubstr("01/sex/mar08:0012:0011:3017:00"));
}

TEST_F(CardWindow, AClosedMonthCanBeLookedAtOnly) {
    desk.file(kPunches) = "  \r\n01/sex/mar07:00\r\n";
    asked.locks.closed = {"001"};
    open();
    EXPECT_EQ(driven->label("card.marks1"), "⚠ Folha Fechada");
    EXPECT_EQ(driven->find<QListWidget>("card.employees").item(0)->text().toStdString(),
              "001 ANA\nFolha Fechada");
    grid(1).goToStart();
    QApplication::clipboard()->setText(QStringLiteral("9"));
    const std::vector<std::function<void()>> attempts = {
        [this] { QTest::keyClick(&grid(1), '8'); }, [this] { driven->press(Qt::Key_F2); },
        [this] { driven->press(Qt::Key_Delete); },
        [this] { driven->press(Qt::Key_V, Qt::ControlModifier); }};
    for (std::size_t i = 0; i < attempts.size(); ++i) {
        attempts[i]();
        EXPECT_EQ(desk.person.takeTexts(),
                  std::vector<std::string>{
                      "ATENÇÃO! Não é Possível Alterar o Ponto! Já Foi Gerada a Folha de Pagamento "
                      "para este Funcionário!!"})
            << i;
        EXPECT_EQ(cell(1, 0, 1), "07:00") << i;
    }
}

TEST_F(CardWindow, ALeaveIsSaidInTheListAndBesideTheName) {
    desk.file("01configAf002") =
        testing::leaveBytes({testing::vacation("28/02/2024", "04/03/2024")});
    open();
    auto& list = driven->find<QListWidget>("card.employees");
    EXPECT_EQ(list.item(1)->text().toStdString(), "002 JOSÉ\nCOLABORADOR COM AFASTAMENTO!!!");
    driven->press(Qt::Key_PageDown);
    EXPECT_EQ(driven->label("card.marks1"), "⚠ COLABORADOR COM AFASTAMENTO!!!");
}

TEST_F(CardWindow, TheCardsOfTheListAreFilledTogether) {
    open();
    auto& box = driven->find<QCheckBox>("card.sameHours");
    EXPECT_EQ(box.accessibleName().toStdString(),
              "Aplicar<Horário de Trabalho> Igual p/todos do Turno");
    driven->click("card.minutesVaried");
    EXPECT_EQ(desk.file("MinFixVar"), "1\r\n");
    driven->type("card.search", "jose");
    desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes};
    driven->press(Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_FALSE(desk.files.content.contains("/data/" + kPunches));  // not shown
    EXPECT_TRUE(desk.files.content.contains("/data/01002-03-2024.bdx"));
    EXPECT_EQ(driven->label("state"), "Ponto aplicado: 1 de 1 da lista");
    driven->find<QLineEdit>("card.search").clear();

    auto& shift = driven->find<QComboBox>("card.shift");
    EXPECT_EQ(shift.itemText(1).toStdString(), "Turno: Unico");
    emit shift.activated(1);
    box.click();
    EXPECT_EQ(box.accessibleName().toStdString(),
              "Aplicar <Quadro de Horário de Trabalho> e <Ponto> Igual p/todos do Unico");
    desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes};
    desk.person.shown.clear();
    driven->press(Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_THAT(desk.person.takeTexts().back(),
                ::testing::HasSubstr("com BASE no FUNCIONÁRIO SELECIONADO?"));
    EXPECT_TRUE(desk.files.content.contains("/data/" + kPunches));
}

TEST_F(CardWindow, TheSituationsOpenWhileTyping) {
    open();
    grid(1).setCurrentIndex(grid(1).model()->index(0, PunchModel::Situation));
    grid(1).setFocus();
    QTest::keyClick(&grid(1), 'f');
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("al"));
    const auto* box = driven->window.findChild<QComboBox*>(QStringLiteral("punch.situation"));
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->completer()->popup()->isVisible());
    EXPECT_EQ(box->completer()->completionCount(), 2);
}

}  // namespace
}  // namespace winvrx
