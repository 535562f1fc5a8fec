#include "timecard/month/feriados.h"

#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::TestWorkplace;

struct HolidayList : ::testing::Test {
    TestWorkplace desk;
    Feriados screen{desk.at};
    const std::string anniversary =
        "05/12      ANIVERS\xC1RIO DE TAUBAT\xC9                   guardado";

    void SetUp() override {
        desk.file("Feriados") = joinedLines({anniversary, "31/02 NUNCA"});
        screen.load();
    }
    [[nodiscard]] std::vector<std::string> onDisk() { return splitLines(desk.file("Feriados")); }
    void agree() { desk.person.answers = {Answer::Yes}; }
};

TEST_F(HolidayList, DaysAreIncludedChangedAndDeleted) {
    agree();
    ASSERT_TRUE(screen.include({" 9/7 ", " 9 DE JULHO "}));
    EXPECT_THAT(onDisk(), ElementsAre(anniversary, "31/02 NUNCA",
                                      encode(LocalHoliday{"09/07", "9 DE JULHO"})));
    agree();
    ASSERT_TRUE(screen.change(0, {"05/12/2026", "ANIVERSÁRIO DE TAUBATÉ"}));
    EXPECT_EQ(onDisk()[0], "05/12/2026" + anniversary.substr(10));
    agree();
    ASSERT_TRUE(screen.remove(1));
    EXPECT_EQ(onDisk().size(), 2U);
    EXPECT_EQ(screen.lines().size(), 2U);
}

TEST_F(HolidayList, WhatCannotBeRecordedIsRefusedAndNothingChanges) {
    const auto before = desk.files.content;
    struct Case {
        LocalHoliday typed;
        const char* detail;
    };
    for (const Case& c :
         {Case{{"31/02", "X"}, "Dia: 31/02 não é um dia (dd/mm ou dd/mm/aaaa)."},
          Case{{"", "X"}, "Falta preencher: Dia."},
          Case{{"29/02/2023", "X"}, "Dia: 29/02/2023 não é um dia (dd/mm ou dd/mm/aaaa)."},
          Case{{"09/07", "  "}, "Falta preencher: Nome."},
          Case{{"0512", "OUTRO"}, "Dia: 05/12 já está na lista."}}) {
        agree();
        EXPECT_FALSE(screen.include(c.typed)) << c.typed.day;
        ASSERT_EQ(desk.person.shown.size(), 1U) << c.typed.day;
        EXPECT_EQ(desk.person.shown[0].text, "Dados incorretos!");
        EXPECT_EQ(desk.person.shown[0].detail, c.detail);
        desk.person.shown.clear();
    }
    agree();
    EXPECT_FALSE(screen.include({"09/07", "日"}));
    agree();
    EXPECT_FALSE(screen.change(0, {"", "X"}));
    desk.person.answers = {Answer::No, Answer::No, Answer::No};
    EXPECT_FALSE(screen.include({"09/07", "X"}));
    EXPECT_FALSE(screen.change(0, {"05/12", "X"}));
    EXPECT_FALSE(screen.remove(0));
    EXPECT_EQ(desk.files.content, before);
}

TEST_F(HolidayList, AListChangedElsewhereIsNotOverwritten) {
    desk.file("Feriados") = "01/08      DE OUTRO\r\n";
    agree();
    EXPECT_FALSE(screen.change(0, {"05/12", "X"}));
    agree();
    EXPECT_FALSE(screen.remove(0));
    EXPECT_THAT(onDisk(), ElementsAre("01/08      DE OUTRO"));
    agree();
    EXPECT_FALSE(screen.include({"01/08", "X"}));
    agree();
    EXPECT_TRUE(screen.include({"09/07", "X"}));
    EXPECT_EQ(onDisk().size(), 2U);
}

}  // namespace
}  // namespace winvrx
