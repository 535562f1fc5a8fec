// Typing a card from paper, key by key as a keyboard sends them.
#include "tests/support/card_screen.h"
#include "tests/support/window_driver.h"
#include "timecard/punches/desktop/cartao_ponto_dados_window.h"
#include "timecard/punches/desktop/punch_grid.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QClipboard>
#include <QToolTip>
#include <QWindow>

#include <functional>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Ana works from eight to twelve and from one to five, Monday to Friday; Bia rotates, Caio has no
/// schedule.
struct CardTyping : testing::CardScreen {
    std::unique_ptr<DrivenWindow<CartaoPontoDadosWindow>> driven;
    int keys = 0;

    void open() {
        desk.file(testing::kSchedule) = "08:0012:0013:0017:00";
        ASSERT_TRUE(screen.open());
        driven = std::make_unique<DrivenWindow<CartaoPontoDadosWindow>>(screen);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(driven->window.windowHandle(), key, modifiers);
        ++keys;
    }
    void type(const char* text) {
        for (const char* c = text; *c; ++c, ++keys)
            QTest::keyClick(driven->window.windowHandle(), *c);
    }
    void enter(const std::vector<const char*>& texts) {
        for (const char* text : texts) {
            type(text);
            press(Qt::Key_Return);
            QCoreApplication::processEvents();
        }
    }
    [[nodiscard]] PunchGrid& grid(int half = 1) {
        return driven->find<PunchGrid>(half == 1 ? "card.half1" : "card.half2");
    }
    void chooseEmployee(int row) {
        auto& list = driven->find<QAbstractItemView>("card.employees");
        list.setCurrentIndex(list.model()->index(row, 0));
    }
    void goTo(int day, int column) {
        grid().setFocus();
        grid().setCurrentIndex(grid().model()->index(day - 1, column));
    }
    [[nodiscard]] std::string cell(int day, int column) {
        return grid().model()->index(day - 1, column).data().toString().toStdString();
    }
    [[nodiscard]] std::string state() { return driven->label("state"); }
    /// "5:1" for the entry of the fifth.
    [[nodiscard]] std::string cursor() {
        const bool second = grid(2).hasFocus();
        const QModelIndex at = grid(second ? 2 : 1).currentIndex();
        return std::to_string(at.row() + (second ? 16 : 1)) + ":" + std::to_string(at.column());
    }
};

TEST_F(CardTyping, AMonthFromPaperTakesNoIdleKey) {
    open();
    // Five keys a time are twenty a day, a month of 22 days 440. March has 20 and a holiday.
    constexpr int kMostKeys = 20 * 440 / 22;
    driven->find<QAbstractItemView>("card.employees").setFocus();
    press(Qt::Key_Return);
    for (int day = 1; day <= 28; ++day) {
        if (day % 7 == 2 || day % 7 == 3) continue;
        EXPECT_EQ(cursor(), std::to_string(day) + ":1");
        if (day == 6) {
            press(Qt::Key_End);
            enter({"fal"});
        } else if (day == 12) {
            enter({"0758", "1201"});
            press(Qt::Key_Left);
            enter({"1202", "1300", "1705"});
        } else {
            enter({"0758", "1201", "1300", "1705"});
        }
    }
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_LE(keys, kMostKeys);
    const std::string& card = desk.file(testing::kPunches);
    EXPECT_THAT(card, HasSubstr("\r\n05/ter/mar07:5812:0113:0017:05"));
    EXPECT_THAT(card, HasSubstr("\r\n06/qua/mar                                   Falta"));
    EXPECT_THAT(card, HasSubstr("\r\n12/ter/mar07:5812:0213:0017:05"));
    EXPECT_THAT(card, HasSubstr("\r\n28/qui/mar07:5812:0113:0017:05"));
}

TEST_F(CardTyping, EnterStopsWhereTimesAreExpectedOrStand) {
    desk.file(testing::kPunches) = "  \r\n03/dom/mar                    09:00\r\n";
    open();
    goTo(1, 3);
    std::vector<std::string> stops;
    for (int step = 0; step < 5; ++step) {
        stops.push_back(cursor());
        press(Qt::Key_Return);
    }
    EXPECT_THAT(stops, ::testing::ElementsAre("1:3", "1:4", "3:5", "3:6", "4:1"));
    goTo(15, PunchModel::Situation);
    press(Qt::Key_Return);
    EXPECT_TRUE(grid(2).hasFocus());
    EXPECT_EQ(grid(2).currentIndex(), grid(2).model()->index(2, 1)) << "the 18th, a Monday";
}

TEST_F(CardTyping, WithoutAScheduleOrInARotationSaturdayIsTypedToo) {
    desk.file("01PadrHor002.pdx") = "07:0019:00";
    open();
    struct Case {
        int person;
        const char* next;  ///< behind the last time of the first, a Friday
    };
    for (const Case& c : {Case{0, "4:1"}, Case{1, "2:1"}, Case{2, "2:1"}}) {
        chooseEmployee(c.person);
        goTo(1, 4);
        press(Qt::Key_Return);
        EXPECT_EQ(cursor(), c.next) << c.person;
    }
}

TEST_F(CardTyping, WhatIsNoTimeIsSaidAtOnceAndHoldsTheCursor) {
    struct Case {
        const char* typed;
        const char* shown;
        const char* whileTyping;  ///< nothing while it may still become a time
        const char* said;         ///< of the wrong ones
    };
    const char* const none = "não é uma hora de 00:00 a 23:59.";
    open();
    for (const Case& c :
         {Case{"8h", "⚠ 8h", none, none}, Case{"abc", "⚠ abc", none, none},
          Case{"24:00", "⚠ 24:00", none, none}, Case{"2500", "⚠ 2500", none, none},
          Case{"8,5", "⚠ 8,5", "", "escreva os dois algarismos dos minutos, como em 8,30."},
          Case{"08:305", "08:30", "⚠ 5 de 5 caracteres; ficou de fora: \"5\"", ""},
          Case{"0800", "08:00", "", ""}, Case{"8:00", "08:00", "", ""},
          Case{"800", "08:00", "", ""}}) {
        goTo(4, 1);
        type(c.typed);
        EXPECT_THAT(state(), HasSubstr(c.whileTyping)) << c.typed;
        EXPECT_TRUE(!*c.whileTyping || QToolTip::text().toStdString() == state()) << c.typed;
        press(Qt::Key_Return);
        const bool good = !*c.said;
        EXPECT_EQ(cell(4, 1), c.shown);
        EXPECT_EQ(cursor(), good ? "4:2" : "4:1") << c.typed;
        if (good) continue;
        EXPECT_THAT(state(), StartsWith("⚠ \"" + std::string(c.typed) + "\" ")) << c.typed;
        EXPECT_THAT(state(), HasSubstr(c.said)) << c.typed;
        EXPECT_EQ("⚠ " + QToolTip::text().toStdString(), state()) << c.typed;
        press(Qt::Key_Return);
        EXPECT_EQ(cursor(), "4:2") << "the keyboard never dead-ends";
    }
}

TEST_F(CardTyping, AColumnSaysWhatItHasNoRoomFor) {
    struct Case {
        int column;
        const char* typed;
        const char* pasted;
        const char* said;
        const char* shown;
    };
    open();
    for (const Case& c :
         {Case{PunchModel::ShortField, "ab", "", "2 de 5 caracteres", "ab"},
          Case{PunchModel::ShortField, "abcdef", "", "⚠ 5 de 5 caracteres; ficou de fora: \"f\"",
               "abcde"},
          Case{PunchModel::Situation, "reuniao no cent", "", "15 de 15 caracteres",
               "reuniao no cent"},
          Case{PunchModel::Situation, "x", "treinamento fora",
               "⚠ 15 de 15 caracteres; ficou de fora: \"ra\"", "xtreinamento fo"},
          Case{PunchModel::Situation, "falta injustificada", "", "", "Falta Injustificada"}}) {
        goTo(5, c.column);
        type(c.typed);
        QApplication::clipboard()->setText(QString::fromUtf8(c.pasted));
        if (*c.pasted) QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        EXPECT_THAT(state(), HasSubstr(c.said)) << c.typed;
        enter({""});
        EXPECT_EQ(cell(5, c.column), c.shown) << c.typed;
    }
}

TEST_F(CardTyping, KeysBesideTheTimesLeadToACellOfTheRow) {
    desk.file(testing::kPunches) = "  \r\n04/seg/mar08:00\r\n05/ter/mar08:0012:0013:0017:00\r\n";
    open();
    struct Case {
        int day;
        int column;
        char key;
        const char* cursor;
    };
    for (const Case& c :
         {Case{4, PunchModel::Day, '9', "4:2"}, Case{4, PunchModel::Situation, '9', "4:2"},
          Case{4, PunchModel::Total, '9', "4:2"}, Case{5, PunchModel::Difference, '9', "5:1"},
          Case{3, PunchModel::Day, '9', "3:1"}, Case{4, PunchModel::ShortField, '9', "4:7"},
          Case{4, PunchModel::Total, 'f', "4:8"}, Case{4, PunchModel::Day, 'f', "4:8"}}) {
        goTo(c.day, c.column);
        QTest::keyClick(driven->window.windowHandle(), c.key);
        EXPECT_EQ(cursor(), c.cursor) << c.day << " " << c.column << c.key;
        EXPECT_NE(grid().indexWidget(grid().currentIndex()), nullptr) << "open to be typed in";
        for (int i = 0; i < 2 && grid().indexWidget(grid().currentIndex()); ++i)
            press(Qt::Key_Escape);  // the list of situations takes the first
        goTo(c.day, c.column);
        press(Qt::Key_Home);
        EXPECT_EQ(cursor(), std::to_string(c.day) + ":1");
    }
}

TEST_F(CardTyping, TimesWithoutAScheduleAreSaidToBeExtra) {
    open();
    chooseEmployee(2);
    goTo(4, 1);
    EXPECT_THAT(state(), ::testing::Not(HasSubstr("extras")));
    enter({"8", "12"});
    EXPECT_THAT(state(), HasSubstr("Sem horário padrão, as horas digitadas contam como extras"));
}

TEST_F(CardTyping, NoPastedTextDrivesTheWindowWiderThanTheScreen) {
    open();
    driven->window.resize(1240, 690);
    for (const int letters : {280, 200'000}) {
        goTo(4, 1);
        QApplication::clipboard()->setText(QString(letters, QLatin1Char('x')));
        press(Qt::Key_V, Qt::ControlModifier);
        press(Qt::Key_S, Qt::ControlModifier);
        QCoreApplication::processEvents();
        EXPECT_EQ(driven->window.width(), 1240) << letters;
        EXPECT_LE(driven->window.minimumSizeHint().width(), 1240) << letters;
        const QModelIndex at = grid().model()->index(3, 1);
        EXPECT_LE(at.data().toString().size(), 50);
        EXPECT_LE(at.data(Qt::ToolTipRole).toString().size(), 600);
        EXPECT_LE(at.data(Qt::AccessibleTextRole).toString().size(), 100);
        EXPECT_LE(state().size(), 200U);
        EXPECT_EQ(at.data(Qt::EditRole).toString().size(), letters) << "nothing typed is lost";
        press(Qt::Key_F2);
        press(Qt::Key_Return);
        EXPECT_EQ(at.data(Qt::EditRole).toString().size(), letters) << "nor by an editor";
    }
    for (QLabel* label : driven->window.findChildren<QLabel*>()) {
        if (!label->isVisible()) continue;
        label->setText(QString(2000, QLatin1Char('x')));
        EXPECT_LE(driven->window.minimumSizeHint().width(), 1280)
            << label->objectName().toStdString();
        label->clear();
    }
}

TEST_F(CardTyping, EveryEditorSaysItsCellAndDay) {
    open();
    const std::vector<const char*> names = {"Entrada manhã", "Saída manhã",   "Entrada tarde",
                                            "Saída tarde",   "Entrada extra", "Saída extra",
                                            "Obs.",          "Situação"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        goTo(5, static_cast<int>(i) + 1);
        press(Qt::Key_F2);
        EXPECT_EQ(QApplication::focusWidget()->accessibleName().toStdString(),
                  std::string(names[i]) + ", dia 05/ter/mar");
        press(Qt::Key_Escape);
    }
}

/// Qt warns of an editor that is committed too late, and each warning fails the test.
TEST_F(CardTyping, AnOpenEditorOutlivesNoRefresh) {
    open();
    const std::vector<std::function<void()>> interruptions = {
        [this] { driven->window.refresh(); },
        [this] { driven->press(Qt::Key_F6); },
        [this] { driven->press(Qt::Key_PageDown); },
        [this] { driven->press(Qt::Key_PageUp); },
        [this] { driven->press(Qt::Key_F7); },
        [this] {
            EXPECT_TRUE(screen.open());
            driven->window.refresh();
        },
        [this] { press(Qt::Key_Return); },
        [this] { driven->press(Qt::Key_S, Qt::ControlModifier); },
        [this] { driven->window.resize(2400, 900); },
        [this] { driven->window.resize(1240, 690); }};
    for (const int column : {1, static_cast<int>(PunchModel::Situation)})
        for (const auto& interrupt : interruptions)
            for (const bool enterFirst : {false, true}) {
                PunchGrid& shown = grid(grid().isVisible() ? 1 : 2);
                shown.setFocus();
                shown.setCurrentIndex(shown.model()->index(3, column));
                type(column == 1 ? "8" : "f");
                // As two keys in a row, before the program comes to what the first one put off.
                if (enterFirst) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                desk.person.answers = {Answer::No};
                interrupt();
                QCoreApplication::processEvents();
            }
}

}  // namespace
}  // namespace winvrx
