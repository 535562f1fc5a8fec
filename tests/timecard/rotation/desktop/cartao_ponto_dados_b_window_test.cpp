#include "timecard/rotation/desktop/cartao_ponto_dados_b_window.h"

#include "tests/support/window_driver.h"
#include "tests/timecard/rotation/rotation_screen.h"

#include <gmock/gmock.h>
#include <QHeaderView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using ::testing::HasSubstr;
using testing::RotationScreen;

struct RotationWindow : RotationScreen {
    std::unique_ptr<DrivenWindow<CartaoPontoDadosBWindow>> driven;

    void open(ShiftFilter shift = ShiftFilter::Unico) {
        ASSERT_TRUE(screen.filterBy(shift));
        driven = std::make_unique<DrivenWindow<CartaoPontoDadosBWindow>>(screen);
    }
    /// A new group of the first `count` of the list, with the next one as relief worker.
    void plan(int count, bool relief) {
        driven->press(Qt::Key_Insert);
        focus("rotation.employees");
        for (int i = 0; i < count; ++i)
            driven->press(Qt::Key_Return);
        if (relief) driven->click("rotation.addRelief");
    }
    void focus(const char* name) { driven->find(name).setFocus(); }
    void saveByKey() {
        desk.person.answers = {Answer::Yes};
        driven->press(Qt::Key_S, Qt::ControlModifier);
    }
    [[nodiscard]] QTableView& grid() { return driven->find<QTableView>("rotation.plan"); }
    [[nodiscard]] std::string cell(int row, int day) {
        return grid().model()->index(row, day - 1).data().toString().toStdString();
    }
    [[nodiscard]] std::string spoken(int row, int day) {
        return grid()
            .model()
            ->index(row, day - 1)
            .data(Qt::AccessibleTextRole)
            .toString()
            .toStdString();
    }
    /// The names of the rows.
    [[nodiscard]] std::string order() {
        std::string names;
        for (int row = 0; row + 1 < grid().model()->rowCount(); ++row)
            names += grid().model()->headerData(row, Qt::Vertical).toString().toStdString() + "|";
        return names;
    }
    [[nodiscard]] std::string listed(const char* list, int row) {
        return driven->find<QListWidget>(list).item(row)->text().toStdString();
    }
};

TEST_F(RotationWindow, AGroupIsPlannedSeenAndRecordedByKeys) {
    open();
    EXPECT_EQ(driven->focusName(), "rotation.employees");
    EXPECT_EQ(listed("rotation.employees", 0), "001 E1\nS/GRUPO! CRIAR NOVO GRUPO.");
    plan(5, true);
    EXPECT_EQ(order(), "001 E1|002 E2|003 E3|004 E4|005 E5|Folguista 006 E6|");
    EXPECT_EQ(listed("rotation.employees", 0), "001 E1\nGRUPO-001");
    EXPECT_EQ(listed("rotation.employees", 6), "007 E7\nS/GRUPO! ADICIONE NO GRUPO");
    EXPECT_EQ(cell(0, 1) + cell(0, 7) + cell(5, 1) + cell(5, 6) + cell(0, 29), "FFRFT");
    EXPECT_EQ(spoken(5, 3), "03/03/2024 domingo: 006 E6: No lugar de 003 E3");
    EXPECT_EQ(spoken(6, 29), "29/03/2024 sexta-feira, feriado: trabalham 5");
    EXPECT_THAT(driven->find<QPlainTextEdit>("rotation.remarks").toPlainText().toStdString(),
                HasSubstr("art. 386"));
    EXPECT_EQ(listed("rotation.groups", 0), "GRUPO-001  5 x 1  Unico  6 funcionários\nnão gravado");
    saveByKey();
    EXPECT_THAT(recorded(), HasSubstr("GRUPO-001 Unico 5x1   01/03/2024 006 06/03/2024"));
    EXPECT_EQ(listed("rotation.groups", 0), "GRUPO-001  5 x 1  Unico  6 funcionários");
    EXPECT_THAT(driven->state(), HasSubstr("Grupo gravado"));
    driven->press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].request.output, ReportOutput::Preview);
    driven->press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_THAT(editor.opened, ::testing::ElementsAre("FolhaRevezamento.txt"));
}

TEST_F(RotationWindow, RowsAreMovedAndRemovedAlikeByKeysCommandsAndMouse) {
    const auto drag = [this](int from, int to) {
        const QHeaderView* names = grid().verticalHeader();
        const auto middle = [&](int row) {
            return QPoint(names->width() / 2,
                          names->sectionViewportPosition(row) + names->sectionSize(row) / 2);
        };
        QTest::mousePress(names->viewport(), Qt::LeftButton, {}, middle(from));
        for (int row = from; row != to; row += from < to ? 1 : -1)
            QTest::mouseMove(names->viewport(), middle(row));
        const QPoint beyond = middle(to) + QPoint(0, from < to ? 2 : -2);
        QTest::mouseMove(names->viewport(), beyond);
        QTest::mouseRelease(names->viewport(), Qt::LeftButton, {}, beyond);
    };
    const struct {
        const char* what;
        int row;
        std::function<void()> act;
        const char* order;
        int then;  ///< the row on which the cursor stands
    } cases[] = {
        {"key down", 0, [&] { driven->press(Qt::Key_Down, Qt::ControlModifier); },
         "002 E2|001 E1|003 E3|Folguista 004 E4|", 1},
        {"key up", 1, [&] { driven->press(Qt::Key_Up, Qt::ControlModifier); },
         "001 E1|002 E2|003 E3|Folguista 004 E4|", 0},
        {"up from the first", 0, [&] { driven->click("rotation.up"); },
         "001 E1|002 E2|003 E3|Folguista 004 E4|", 0},
        {"command down", 1, [&] { driven->click("rotation.down"); },
         "001 E1|003 E3|002 E2|Folguista 004 E4|", 2},
        {"dragged down", 0, [&] { drag(0, 2); }, "003 E3|002 E2|001 E1|Folguista 004 E4|", 2},
        {"dragged up", 2, [&] { drag(2, 1); }, "003 E3|001 E1|002 E2|Folguista 004 E4|", 1},
        {"dragged below the list", 0, [&] { drag(0, 4); }, "003 E3|001 E1|002 E2|Folguista 004 E4|",
         0},
        {"down from the last", 2, [&] { driven->click("rotation.down"); },
         "003 E3|001 E1|002 E2|Folguista 004 E4|", 2},
        {"removed by key", 1, [&] { driven->press(Qt::Key_Delete); },
         "003 E3|(vago)|002 E2|Folguista 004 E4|", 1},
        {"relief worker removed", 3, [&] { driven->click("rotation.remove"); },
         "003 E3|(vago)|002 E2|", 2},
    };
    open();
    plan(3, true);
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        grid().setFocus();
        grid().selectRow(one.row);
        one.act();
        EXPECT_EQ(order(), one.order);
        EXPECT_EQ(grid().currentIndex().row(), one.then);
    }
    EXPECT_EQ(desk.files.content.count("/data/01GRUPO-032024.rdx"), 0U) << "nothing is recorded";
}

TEST_F(RotationWindow, WhatIsMissingIsSaidAtOnceWithAWord) {
    open();
    EXPECT_THAT(driven->label("rotation.hint"), HasSubstr("Ins"));
    plan(6, false);
    EXPECT_THAT(driven->label("rotation.gaps"),
                HasSubstr("Dias descobertos: 01, 02, 03, 04, 05, 06"));
    EXPECT_EQ(cell(6, 1), "5!");
    EXPECT_THAT(spoken(6, 1), HasSubstr("SEM FOLGUISTA"));
    driven->click("rotation.addRelief");
    EXPECT_THAT(driven->label("rotation.hint"), HasSubstr("Informe um segundo folguista"));
    driven->click("rotation.addRelief");
    EXPECT_EQ(cell(6, 1) + cell(7, 2), "FF") << "the first has a day off now, too";
    EXPECT_FALSE(driven->find("rotation.hint").isVisible());
    grid().selectRow(7);
    driven->click("rotation.remove");
    driven->choose("rotation.firstDay", "04 seg");
    EXPECT_EQ(cell(0, 4) + cell(0, 1), "F");
    grid().selectRow(5);
    driven->click("rotation.remove");
    driven->choose("rotation.reliefDay1", "03 dom");
    EXPECT_EQ(cell(5, 3), "F");
    EXPECT_FALSE(driven->find("rotation.hint").isVisible());
    EXPECT_FALSE(driven->find("rotation.gaps").isVisible());
}

TEST_F(RotationWindow, TheTableIsTypedAndRecordedForOneShift) {
    open(ShiftFilter::Tres);
    driven->openTab("rotation.pages", "Quadro");
    EXPECT_EQ(driven->text("workTable.time1.1"), "22:00");
    driven->type("workTable.time7.1", "19");
    driven->press(Qt::Key_Return);
    EXPECT_EQ(driven->text("workTable.time7.1"), "19:00");
    EXPECT_THAT(driven->label("workTable.finding"), HasSubstr("Domingo: Falta a entrada"));
    driven->typeHere("2300");
    EXPECT_EQ(driven->label("workTable.weekly"), "52,0 HORAS SEMANAIS");
    EXPECT_THAT(driven->state(), HasSubstr("Quadro não gravado"));
    saveByKey();
    EXPECT_THAT(desk.file("01er.rdx"), HasSubstr("Tres  5x1"));
    EXPECT_THAT(driven->state(), HasSubstr("Quadro gravado"));
    driven->press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(driven->label("workTable.weekly"), "48,0 HORAS SEMANAIS");
}

TEST_F(RotationWindow, ANewMonthGoesOnWithOneKey) {
    using namespace std::chrono_literals;
    draw({1, 2, 3}, 5);
    ASSERT_TRUE(save());
    choose(2024y / 4);
    open();
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_F8);
    EXPECT_EQ(order(), "001 E1|002 E2|003 E3|");
    EXPECT_EQ(cell(0, 4), "F") << "six days after 29 March";
    EXPECT_FALSE(driven->find("rotation.continue").isVisible());
}

TEST_F(RotationWindow, TypedWorkIsNotLeftWithoutAQuestion) {
    draw({1}, 1);
    ASSERT_TRUE(save());
    draw({2}, 1);
    ASSERT_TRUE(save());
    open();
    driven->click("rotation.down");
    grid().selectRow(0);
    driven->click("rotation.remove");
    auto& groups = driven->find<QListWidget>("rotation.groups");
    groups.setCurrentRow(1 - groups.currentRow());
    QCoreApplication::processEvents();
    EXPECT_THAT(groups.currentItem()->text().toStdString(), HasSubstr("não gravado"));
    driven->press(Qt::Key_Escape);
    EXPECT_TRUE(driven->window.isVisible());
    EXPECT_EQ(shown().size(), 4U) << "two recorded, two refused to be left";
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_Escape);
    EXPECT_FALSE(driven->window.isVisible());
}

TEST_F(RotationWindow, EveryInputHasANameAndEveryAltLetterOneOwner) {
    draw({1, 2, 3}, 1, 4, 4);
    ASSERT_TRUE(save());
    open();
    for (const int page : {0, 1}) {
        driven->find<QTabWidget>("rotation.pages").setCurrentIndex(page);
        EXPECT_EQ(driven->namelessWidgets(), "") << page;
        EXPECT_EQ(driven->sharedAltLetters(), "") << page;
    }
}

}  // namespace
}  // namespace winvrx
