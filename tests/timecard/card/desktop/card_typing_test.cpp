#include "tests/support/card_window.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>

namespace winvrx {
namespace {

using testing::CardWindow;
using testing::kPunches;

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

TEST_F(CardWindow, TheSituationsOpenWhileTyping) {
    open();
    grid(1).setCurrentIndex(grid(1).model()->index(0, PunchModel::Situation));
    grid(1).setFocus();
    QTest::keyClick(&grid(1), 'f');
    driven->typeHere("al");
    const auto* box = driven->window.findChild<QComboBox*>(QStringLiteral("punch.situation"));
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->completer()->popup()->isVisible());
    EXPECT_EQ(box->completer()->completionCount(), 2);
}

}  // namespace
}  // namespace winvrx
