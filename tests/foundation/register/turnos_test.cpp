#include "foundation/register/turnos.h"

#include "tests/support/employee_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::EmployeeDesk;

class TurnosTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Employee bia = EmployeeDesk::employee("002", "BIA");
        bia.shift = "Tres";
        bia.scale = "12x36";
        desk_.record("01", {EmployeeDesk::employee("001", "ANA"), bia});
        turnos_.load();
    }

    [[nodiscard]] std::string shown() const {
        std::string codes;
        for (const Employee& one : turnos_.list().employees())
            codes += one.code + " ";
        return codes;
    }

    EmployeeDesk desk_;
    Turnos turnos_{desk_.at, desk_.locks, desk_.locks};
};

TEST_F(TurnosTest, ChangesTheShiftOnly) {
    const Employee before = decode<Employee>(splitLines(desk_.file("01CartaPonto"))[0]);
    EXPECT_FALSE(turnos_.change(turnos_.list().employees()[0], Shift::Dois))
        << "No leaves the shift";
    desk_.person.takeTexts();
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(turnos_.change(turnos_.list().employees()[0], Shift::Dois));
    EXPECT_EQ(desk_.person.shown[0].title, "ALTERAÇÃO");
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma Alteração deste ITEM?"));
    Employee after = decode<Employee>(splitLines(desk_.file("01CartaPonto"))[0]);
    EXPECT_EQ(after.shift, "Dois");
    after.shift = before.shift;
    EXPECT_EQ(after, before);
    EXPECT_TRUE(desk_.files.exists("/data/bk-0115-03-2024-10-00.bkp"));
}

TEST_F(TurnosTest, TheListFollowsTheFilter) {
    EXPECT_EQ(shown(), "001 002 ");
    turnos_.list().filterBy(ShiftFilter::Tres);
    EXPECT_EQ(shown(), "002 ");
    turnos_.list().filterBy(ShiftFilter::Dois);
    EXPECT_EQ(shown(), "");
    desk_.session.shiftFilter = ShiftFilter::Unico;
    EXPECT_EQ(Turnos(desk_.at, desk_.locks, desk_.locks).list().shift(), ShiftFilter::Unico);
}

TEST_F(TurnosTest, Refuses) {
    const auto before = desk_.files.content;
    desk_.locks.inGroups = {"001"};
    desk_.person.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    EXPECT_FALSE(turnos_.change(turnos_.list().employees()[0], Shift::Dois));
    EXPECT_EQ(desk_.person.shown.back().text,
              "Não Permitido Alteração de Turno deste Funcionário pois consta na lista de um dos "
              "Grupos da Escala de Revezamento. Para Alterar, Primeiro Remova-o da Lista de "
              "Revezamento. ");
    EXPECT_FALSE(turnos_.change(turnos_.list().employees()[1], Shift::Dois));
    EXPECT_EQ(desk_.person.shown.back().text, "Dado Incorreto!") << "12x36 bars the second shift";
    Employee unknown = turnos_.list().employees()[0];
    unknown.shift = "Seis";
    EXPECT_FALSE(turnos_.change(unknown, std::nullopt));
    EXPECT_EQ(desk_.person.shown.back().detail,
              "O turno \"Seis\" de 001 ANA não é conhecido. Escolha o novo turno na lista.");
    EXPECT_EQ(desk_.files.content, before);
}

TEST_F(TurnosTest, ARecordChangedMeanwhileIsNotWritten) {
    const Employee shown = turnos_.list().employees()[0];
    struct Case {
        const char* what;
        std::vector<Employee> list;
    };
    Employee moved = shown;
    moved.city = "TAUBATE";
    for (const Case& c :
         {Case{"the record was changed", {moved}},
          Case{"the code is another person's", {EmployeeDesk::employee("001", "EVA")}},
          Case{"the list is empty", {}}}) {
        desk_.record("01", c.list);
        const auto before = desk_.files.content;
        desk_.person.answers = {Answer::Yes};
        EXPECT_FALSE(turnos_.change(shown, Shift::Dois)) << c.what;
        EXPECT_EQ(desk_.person.shown.back().text, "Dados incorretos!") << c.what;
        EXPECT_EQ(desk_.person.shown.back().detail, changedElsewhere("").explanation()) << c.what;
        EXPECT_EQ(desk_.files.content, before) << c.what;
    }
}

TEST_F(TurnosTest, AClosedPayrollIsWarnedOfAsInTheRegister) {
    desk_.locks.closed = {"001"};
    const auto before = desk_.files.content;
    desk_.person.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(turnos_.change(turnos_.list().employees()[0], Shift::Dois));
    EXPECT_EQ(desk_.files.content, before);
    EXPECT_EQ(desk_.person.shown.back().text,
              "Confirma Gravar Alteração dos Dados do Funcionário Selecionado?");
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(turnos_.change(turnos_.list().employees()[0], Shift::Dois));
}

TEST_F(TurnosTest, OfTwoLinesWithOneCodeTheOneShownIsChanged) {
    desk_.record("01",
                 {EmployeeDesk::employee("001", "ANA"), EmployeeDesk::employee("001", "EVA")});
    turnos_.load();
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(turnos_.change(turnos_.list().employees()[1], Shift::Dois));
    EXPECT_EQ(turnos_.list().employees()[0].shift, "Unico");
    EXPECT_EQ(turnos_.list().employees()[1].shift, "Dois");
}

}  // namespace
}  // namespace winvrx
