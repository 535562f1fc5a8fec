#include "tests/support/card_window.h"
#include "tests/support/leave_files.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include <functional>
#include <utility>

namespace winvrx {
namespace {

using testing::CardWindow;
using testing::DrivenWindow;
using testing::kPunches;

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

TEST_F(CardWindow, OtherScreensOpenOnlyAfterTheChangesAreSettled) {
    open();
    driven->type("schedule.time1", "7");
    driven->press(Qt::Key_F7);  // answered Cancel
    driven->press(Qt::Key_F8);
    EXPECT_EQ(monthOpened + leavesOpened, 0);
    desk.person.answers = {Answer::No, Answer::No};
    driven->press(Qt::Key_F7);
    EXPECT_EQ(monthOpened, 1);
    driven->press(Qt::Key_F8);
    EXPECT_EQ(leavesOpened, 1);
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

}  // namespace
}  // namespace winvrx
