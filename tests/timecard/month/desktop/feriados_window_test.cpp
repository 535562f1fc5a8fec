#include "timecard/month/desktop/feriados_window.h"

#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QTreeWidget>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::TestWorkplace;
using testing::WindowDriver;

struct HolidayListWindow : ::testing::Test {
    TestWorkplace desk;
    Feriados holidays{desk.at};

    HolidayListWindow() { desk.file("Feriados") = "05/12      PADROEIRO\r\n31/02 NUNCA\r\n"; }
};

TEST_F(HolidayListWindow, ADayIsTypedOnTheKeypadAndRecorded) {
    FeriadosWindow window(holidays);
    const WindowDriver screen(window);
    EXPECT_EQ(screen.focusName(), "feriados.day");
    EXPECT_EQ(screen.state(), "Novo feriado");
    screen.typeHere("907");
    screen.press(Qt::Key_Return);
    EXPECT_EQ(screen.hint("feriados.day"),
              "⚠ Digite o dia como dd/mm (todo ano) ou dd/mm/aaaa (uma vez).");
    screen.type("feriados.day", "0907");
    screen.press(Qt::Key_Return);
    EXPECT_EQ(screen.text("feriados.day"), "09/07");
    EXPECT_EQ(screen.hint("feriados.day"), "");
    EXPECT_EQ(screen.focusName(), "feriados.name");
    screen.typeHere("9 DE JULHO");
    desk.person.answers = {Answer::Yes};
    screen.press(Qt::Key_Return);
    EXPECT_THAT(splitLines(desk.file("Feriados")),
                ElementsAre("05/12      PADROEIRO", "31/02 NUNCA",
                            encode(LocalHoliday{"09/07", "9 DE JULHO"})));
    EXPECT_EQ(screen.state(), "3 de 3");
    EXPECT_EQ(screen.namelessWidgets(), "");
}

TEST_F(HolidayListWindow, ALineIsChangedAndALineNotUnderstoodCanOnlyGo) {
    FeriadosWindow window(holidays);
    const WindowDriver screen(window);
    auto& list = screen.find<QTreeWidget>("feriados.list");
    list.setCurrentItem(list.topLevelItem(0));
    screen.type("feriados.name", "SÃO FRANCISCO");
    desk.person.answers = {Answer::Yes};
    screen.press(Qt::Key_F2);
    EXPECT_THAT(desk.file("Feriados"), ::testing::StartsWith("05/12      S\xC3O FRANCISCO "));
    list.setCurrentItem(list.topLevelItem(1));
    EXPECT_FALSE(screen.find<QLineEdit>("feriados.name").isEnabled());
    EXPECT_THAT(list.topLevelItem(1)->text(1).toStdString(), ::testing::HasSubstr("31/02 NUNCA"));
    desk.person.answers = {Answer::Yes};
    list.setFocus();
    screen.press(Qt::Key_Delete);
    EXPECT_EQ(splitLines(desk.file("Feriados")).size(), 1U);
}

TEST_F(HolidayListWindow, WhatIsRefusedIsSaidBesideTheFieldAndLeadsTheCursorThere) {
    struct Case {
        const char* day;
        const char* name;
        const char* field;
        const char* beside;
    };
    for (const Case& c : {Case{"", "X", "feriados.day", ""},
                          {"31/02", "X", "feriados.day",
                           "⚠ Digite o dia como dd/mm (todo ano) ou dd/mm/aaaa (uma vez)."},
                          {"0512", "X", "feriados.day", "⚠ 05/12 já está na lista."},
                          {"09/07", " ", "feriados.name", ""}}) {
        FeriadosWindow window(holidays);
        const WindowDriver screen(window);
        screen.type("feriados.day", c.day);
        screen.type("feriados.name", c.name);
        screen.find("feriados.list").setFocus();
        screen.press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(screen.focusName(), c.field) << c.day;
        EXPECT_EQ(screen.hint(c.field), c.beside) << c.day;
    }
}

TEST_F(HolidayListWindow, TypedTextIsNotLostWithoutAQuestion) {
    FeriadosWindow window(holidays);
    const WindowDriver screen(window);
    screen.type("feriados.name", "X");
    screen.press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(desk.person.shown.size(), 1U);
    desk.person.answers = {Answer::Yes};
    screen.press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace winvrx
