#include "personnel/payroll/eventos.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using enum Answer;

class EventosTest : public ::testing::Test, protected testing::TestWorkplace {
  protected:
    [[nodiscard]] Eventos shown(std::optional<EmployeeCode> employee = std::nullopt) {
        Eventos events(at, {}, std::move(employee));
        events.load();
        return events;
    }
};

TEST_F(EventosTest, IncludesAndChangesAfterItsQuestions) {
    Eventos events = shown();
    EXPECT_EQ(events.count(), kDefaultEvents);
    EXPECT_TRUE(files.content.empty());

    EXPECT_FALSE(events.includeNew({"  ", true, 0, {}}));
    person.answers = {No, Yes};
    const NewEvent said{"COMISSAO", true, 5, {PayrollKind::Month}};
    EXPECT_FALSE(events.includeNew(said));
    EXPECT_TRUE(files.content.empty());
    EXPECT_TRUE(events.includeNew(said));
    const std::string line =
        "Confirma Inclusão deste Evento (023 COMISSAO             "
        "1005,01111000) ?";
    EXPECT_EQ(person.shown.back().title, "Eventos");
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{"Informe um Nome de Evento!", line, line}));
    EXPECT_EQ(splitLines(file("01confgger")).size(), kDefaultEvents + 1);

    PayrollEvent changed = events.lines()[0].record;
    changed.name.clear();
    EXPECT_FALSE(events.change(0, changed));
    changed.name = "SALARIO DE CONTRIBUICAO";
    changed.reference = "200";
    person.answers = {Yes};
    EXPECT_TRUE(events.change(0, changed));
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{"Informe um Nome de Evento!",
                                        "Confirma Alteração do Evento Selecionado?"}));
    EXPECT_EQ(splitLines(file("01confgger"))[0], "001 SALARIO DE CONTRIBUI 1200,01111000");
}

TEST_F(EventosTest, RestoresTheCompanysOrOneEmployeesList) {
    file("01confgger") = "001 SALARIO              1220,01111000\r\n";
    Eventos own = shown(EmployeeCode::parse("007"));
    EXPECT_EQ(own.count(), 1U);
    person.answers = {Yes};
    EXPECT_TRUE(own.restoreDefault());
    EXPECT_EQ(splitLines(file("01007confgger2")).size(), kDefaultEvents);
    EXPECT_EQ(splitLines(file("01confgger")).size(), 1U);

    Eventos events = shown();
    EXPECT_FALSE(events.restoreDefault());
    EXPECT_EQ(splitLines(file("01confgger")).size(), 1U);
    person.answers = {Yes};
    EXPECT_TRUE(events.restoreDefault());
    EXPECT_EQ(splitLines(file("01confgger")).size(), kDefaultEvents);
    EXPECT_EQ(person.shown.back().title, "RESTAURAR PADRÃO");
    const std::string company = "Confirma a 'Restaurar Padrão' da Lista de Eventos?";
    EXPECT_EQ(
        person.takeTexts(),
        (std::vector<std::string>{"Deseja Restaurar Padrão Somente para o FUNCIONARIO SELECIONADO?",
                                  company, company}));
}

TEST_F(EventosTest, LeavesAListThatIsGoneOrWasChanged) {
    file("01confgger") = "001 SALARIO              1220,01111000\r\n";
    Eventos events = shown();
    files.content.clear();
    person.answers = {Yes, Yes};
    EXPECT_FALSE(events.includeNew({"COMISSAO", true, 5, {PayrollKind::Month}}));
    EXPECT_TRUE(files.content.empty());
    file("01confgger") = "001 SALARIO              1200,01111000\r\n";
    PayrollEvent changed = events.lines()[0].record;
    changed.name = "OUTRO";
    EXPECT_FALSE(events.change(0, changed));
    EXPECT_EQ(file("01confgger"), "001 SALARIO              1200,01111000\r\n");
}

}  // namespace
}  // namespace winvrx
