#include "tests/support/card_screen.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using namespace testing;
using namespace std::chrono_literals;

const std::string kOnLeave =
    "! Afastamento: Escolha ou Selecione outro Funcionário que não tenha Afastamento!";
const std::string kNoLine = "! Descrição do Item: Selecione Outro ITEM!!!";
const std::string kDates =
    "x Analise de Datas: A data de Admissão deste Funcionário não está dentro Período do Mês de de "
    "Aplicação de Ponto!";
const std::string kMixed =
    "x HORÁRIO DE TRABALHO IGUAL PARA TODOS: ERRO!! Existe TURNOS e ESCALA diferente na Lista, "
    "Portanto não é possível padronizar HORÁRIO DE TRABALHO IGUAL PARA TODOS!";
const std::string kEveryShift =
    "x HORÁRIO DE TRABALHO IGUAL PARA TODOS: ERRO!! O TURNO selecionado não pode ser <Todos>, "
    "Portanto Selecione um turno Específico!";
const std::string kNoSchedule =
    "x HORÁRIO DE TRABALHO IGUAL PARA TODOS: O horário de trabalho não tem horas de segunda a "
    "sexta.";
const std::string kErases =
    "! Aplicação Ponto: Esta Operação Irá Apagar Todos os Dados Já Existentes, Se Houverem "
    "Alterações Serão Perdidas e Substituidas Pelo Ponto Padrão.";
const std::string kCertain =
    "? Aplicação Ponto???: Tem Certeza que Deseja Substituir as Alterações Já Aplicadas.";
const std::string kSameHours =
    "? HORÁRIO DE TRABALHO IGUAL PARA TODOS: Confirma HORÁRIO DE TRABALHO IGUAL PARA TODOS com "
    "BASE no FUNCIONÁRIO SELECIONADO?";
const std::string kOwnHours =
    "? Aplicação de Pontos: Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão para "
    "Todos os Itens do Turno: Unico da Lista?";

struct ApplyToAll : CardScreen {
    /// ANA, CAIO and DORA work in the same shift, ANA with a schedule.
    void SetUp() override {
        CardScreen::SetUp();
        hire({employee("001", "ANA", "Unico", "Norma"), employee("003", "CAIO", "Unico", "Norma"),
              employee("004", "DORA", "Unico", "Norma"), employee("002", "BIA", "Dois", "Norma")});
        desk.file(kSchedule) = "08:0012:0013:0017:001 08:0012:00\r\n";
    }

    void agreeToAll() { desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes}; }
    [[nodiscard]] std::string firstDayOf(const char* employee) {
        const auto lines = splitLines(desk.file("01" + std::string(employee) + "-03-2024.bdx"));
        return lines.size() < 2 ? "" : lines[1].substr(10, 20);
    }
    [[nodiscard]] bool isApplied(const char* employee) const {
        return desk.files.content.contains("/data/01" + std::string(employee) + "-03-2024.bdx");
    }
};

/// What stands when the command is given, what is answered, and what is shown then.
struct Case {
    const char* what;
    std::vector<std::string> shown;
    std::vector<Answer> answers = {};
    bool sameHours = true;
    ShiftFilter filter = ShiftFilter::Unico;
    const char* scaleOfCaio = "Norma";
    bool selected = true;
    const char* admission = "01/02/2020";
    bool onLeave = false;
    bool done = false;
    bool scheduled = true;
    bool hidden = false;
};

constexpr Answer kOk = Answer::Ok, kYes = Answer::Yes, kNo = Answer::No, kCancel = Answer::Cancel;
constexpr auto kTodos = ShiftFilter::Todos;
constexpr const char* kAfter = "01/04/2024";

const std::vector<Case> kChecks = {
    {.what = "leave",
     .shown = {kOnLeave},
     .filter = kTodos,
     .scaleOfCaio = "5x1",
     .admission = kAfter,
     .onLeave = true},
    {.what = "nobody",
     .shown = {kNoLine},
     .filter = ShiftFilter::Tres,
     .scaleOfCaio = "",
     .selected = false},
    {.what = "admitted later",
     .shown = {kDates},
     .filter = kTodos,
     .scaleOfCaio = "5x1",
     .admission = kAfter},
    {.what = "shifts differ", .shown = {kMixed}, .filter = kTodos},
    {.what = "scales differ", .shown = {kMixed}, .scaleOfCaio = "5x1"},
    {.what = "the model is not in the list",
     .shown = {kNoLine},
     .scaleOfCaio = "12x36",
     .hidden = true},
    {.what = "no schedule to be everyone's", .shown = {kNoSchedule}, .scheduled = false},
    {.what = "own hours, none of his own",
     .shown = {kErases, kCertain, kOwnHours},
     .answers = {kOk, kOk, kNo},
     .sameHours = false,
     .scheduled = false,
     .hidden = true},
    {.what = "erases, cancelled", .shown = {kErases}, .answers = {kCancel}},
    {.what = "certain, cancelled", .shown = {kErases, kCertain}, .answers = {kOk, kCancel}},
    {.what = "not confirmed", .shown = {kErases, kCertain, kSameHours}, .answers = {kOk, kOk, kNo}},
    {.what = "same hours",
     .shown = {kErases, kCertain, kSameHours},
     .answers = {kOk, kOk, kYes},
     .done = true},
    {.what = "own hours, not confirmed",
     .shown = {kErases, kCertain, kOwnHours},
     .answers = {kOk, kOk, kNo},
     .sameHours = false,
     .scaleOfCaio = "5x1"},
    {.what = "own hours, leave", .shown = {kOnLeave}, .sameHours = false, .onLeave = true}};

struct ApplyToAllChecks : ApplyToAll {
    void arrange(const Case& c) {
        Employee ana = employee("001", "ANA", "Unico", "Norma");
        ana.admission = c.admission;
        hire({ana, employee("003", "CAIO", "Unico", c.scaleOfCaio),
              employee("002", "BIA", "Dois", "Norma")});
        asked.locks = {};
        desk.file(kSchedule) = c.scheduled ? "08:0012:0013:0017:001 08:0012:00\r\n" : "";
        desk.file("01configAf001") =
            c.onLeave ? leaveBytes({vacation("10/03/2024", "12/03/2024")}) : "";
        ASSERT_TRUE(screen.open() && screen.filterBy(c.filter));
        if (c.selected) {
            ASSERT_TRUE(screen.select(0));
        }
    }
};

TEST_F(ApplyToAllChecks, GoInOrder) {
    for (const Case& c : kChecks) {
        arrange(c);
        const auto untouched = desk.files.content;
        desk.person.shown.clear();
        desk.person.answers.assign(c.answers.begin(), c.answers.end());
        screen.list().searchFor(c.hidden ? "caio" : "");
        EXPECT_EQ(screen.applyToAll(c.sameHours), c.done) << c.what;
        EXPECT_EQ(takeShown(), c.shown) << c.what;
        EXPECT_EQ(desk.files.content == untouched, !c.done) << c.what;
    }
}

TEST_F(ApplyToAll, OneShiftInAListOfAllShiftsIsRefusedByTheFilter) {
    hire({employee("001", "ANA", "Unico", "Norma"), employee("003", "CAIO", "Unico", "Norma")});
    openOn(0);
    EXPECT_FALSE(screen.applyToAll(true));
    EXPECT_THAT(takeShown(), ElementsAre(kEveryShift));
}

TEST_F(ApplyToAll, TheScheduleOfTheOneSelectedBecomesEveryones) {
    desk.file("01PadrHor003.pdx") = "06:00" + std::string(187, ' ') + "behind\r\nsecond line\r\n";
    ASSERT_TRUE(screen.open() && screen.filterBy(ShiftFilter::Unico) && screen.select(0));
    agreeToAll();
    ASSERT_TRUE(screen.applyToAll(true));
    EXPECT_EQ(desk.person.shown.back().detail,
              "O horário é o de 001 ANA. A lista tem 3 funcionários.");
    EXPECT_EQ(screen.filledCards(), 3);
    for (const char* one : {"001", "003", "004"})
        EXPECT_EQ(firstDayOf(one), "08:0012:0013:0017:00") << one;
    EXPECT_FALSE(isApplied("002"));
    const std::string schedule = "08:0012:0013:0017:001008:0012:00" + std::string(160, ' ');
    EXPECT_EQ(desk.file("01PadrHor003.pdx"), schedule + "behind\r\nsecond line\r\n");
    EXPECT_EQ(desk.file("01PadrHor004.pdx").substr(0, 32), "08:0012:0013:0017:001008:0012:00");
    EXPECT_EQ(screen.sheet().line(1).morningEntry, "08:00");
}

TEST_F(ApplyToAll, EnterCarriesOnOnlyWhereNothingIsLost) {
    struct Case {
        const char* applied;
        const char* typed;
        Answer onEnter;
        const char* detail;
    };
    for (const Case& c : {Case{"", "", Answer::Ok,
                               "Nenhum cartão da lista tem ponto em março/2024: nada se perde."},
                          Case{"01002-03-2024.bdx", "", Answer::Ok,
                               "Nenhum cartão da lista tem ponto em março/2024: nada se perde."},
                          Case{"01003-03-2024.bdx", "", Answer::Cancel,
                               "1 de 3 cartões da lista já tem ponto em março/2024."},
                          Case{"", "9", Answer::Cancel, ""}}) {
        desk.person.shown.clear();
        ASSERT_TRUE(screen.open() && screen.filterBy(ShiftFilter::Unico) && screen.select(0));
        const auto files = desk.files.content;
        if (*c.applied) desk.file(c.applied) = "  \r\n";
        if (*c.typed) screen.sheet().type(4, PunchCell::MorningEntry, c.typed);
        desk.person.answers = {Answer::Ok, Answer::Cancel};
        EXPECT_FALSE(screen.applyToAll(false));
        ASSERT_EQ(desk.person.shown.size(), 2U);
        for (const Message& asked : desk.person.shown) {
            EXPECT_EQ(enterAnswer(asked), c.onEnter) << c.applied << c.typed;
            EXPECT_EQ(asked.detail, c.detail);
        }
        desk.files.content = files;
    }
}

TEST_F(ApplyToAll, EachHasHisOwnHoursAndWhoCannotBeFilledIsNamed) {
    std::vector<Employee> people = {employee("001", "ANA", "Unico", "Norma")};
    for (const char* code : {"002", "003", "004", "005", "006", "007", "008", "009"})
        people.push_back(employee(code, (std::string("E") + code).c_str(), "Dois", "Norma"));
    people[1].scale = "12x36";
    people[2].admission = "01/04/2024";
    people[3].admission = "31/02/2024";
    hire(people);
    asked.locks.closed = {"005"};
    desk.file("01configAf006") = leaveBytes({}, "29/02/2024");
    desk.file("01configAf007") = leaveBytes({vacation("20/02/2024", "01/03/2024")});
    desk.file("01configAf009") = "";
    desk.files.failOn = {"01configAf009"};
    desk.file("01PadrHor007.pdx") = "14:0018:0019:0022:00\r\n";
    openOn(0);
    agreeToAll();
    ASSERT_TRUE(screen.applyToAll(false));
    const Message& report = desk.person.shown.back();
    EXPECT_EQ(report.title, "Aplicação de Pontos");
    EXPECT_EQ(report.text, "Ponto aplicado para 3 de 9 funcionários.");
    EXPECT_EQ(report.detail,
              "Não aplicado, folha fechada: E005\n"
              "Não aplicado, inativo antes do mês: E006\n"
              "Não aplicado, escala de revezamento sem grupo: E002\n"
              "Não aplicado, admissão depois do mês: E003\n"
              "Não aplicado, registro que não pode ser lido: E004 (A data de admissão "
              "\"31/02/2024\" não existe. Corrija-a no cadastro do funcionário.), E009 (Não foi "
              "possível ler "
              "\"01configAf009\": o disco está cheio.)\n"
              "Aplicado sem horas, não tem horário de trabalho: E008\n"
              "Aplicado com afastamento: E007");
    EXPECT_EQ(firstDayOf("001"), "08:0012:0013:0017:00");
    EXPECT_EQ(firstDayOf("007"), std::string(20, ' '));
    EXPECT_EQ(splitLines(desk.file("01007-03-2024.bdx"))[4].substr(10, 20), "14:0018:0019:0022:00");
    for (const char* one : {"002", "003", "004", "005", "006", "009"})
        EXPECT_FALSE(isApplied(one)) << one;
}

TEST_F(ApplyToAll, ALongReportIsCutOnTheScreenAndWholeInTheLog) {
    std::vector<Employee> people;
    for (int number = 1; number <= 40; ++number)
        people.push_back(employee(EmployeeCode::fromNumber(number)->text().c_str(), "N", "Unico",
                                  number == 1 ? "Norma" : "5x1"));
    people.back().name = "ULTIMA";
    hire(people);
    openOn(0);
    agreeToAll();
    ASSERT_TRUE(screen.applyToAll(false));
    EXPECT_THAT(desk.person.shown.back().detail, ::testing::EndsWith(", N e mais 9"));
    EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("ULTIMA")));
}

TEST_F(ApplyToAll, CancellingLeavesEverythingAsItWas) {
    ASSERT_TRUE(screen.open() && screen.filterBy(ShiftFilter::Unico) && screen.select(0));
    const auto untouched = desk.files.content;
    agreeToAll();
    std::vector<int> counts;
    EXPECT_FALSE(screen.applyToAll(true, [&](int done, int total) {
        counts.push_back(done);
        EXPECT_EQ(total, 3);
        return done < 2;
    }));
    EXPECT_THAT(counts, ElementsAre(1, 2));
    EXPECT_EQ(desk.files.content, untouched);
}

TEST_F(ApplyToAll, TheRegisterIsReadAgainBeforeTheCardsAreFilled) {
    ASSERT_TRUE(screen.open() && screen.filterBy(ShiftFilter::Unico) && screen.select(0));
    Employee caio = employee("003", "CAIO", "Unico", "Norma");
    caio.admission = "15/03/2024";
    hire({employee("001", "ANA", "Unico", "Norma"), caio});
    agreeToAll();
    ASSERT_TRUE(screen.applyToAll(true));
    EXPECT_EQ(firstDayOf("003"), std::string(20, ' '));
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("Não está mais no cadastro: 004"));
}

TEST_F(ApplyToAll, ACodeThatTwoBearIsFilledOnce) {
    hire({employee("001", "ANA", "Unico", "Norma"), employee("003", "CAIO", "Unico", "Norma"),
          employee("001", "OUTRA ANA", "Unico", "Norma")});
    openOn(0);
    agreeToAll();
    ASSERT_TRUE(screen.applyToAll(false));
    EXPECT_EQ(desk.person.shown.back().text, "Ponto aplicado para 2 de 3 funcionários.");
    EXPECT_THAT(desk.person.shown.back().detail,
                HasSubstr("Código repetido no cadastro, vale o primeiro: 001"));
    EXPECT_TRUE(isApplied("001") && isApplied("003"));
}

TEST_F(ApplyToAll, UnrecordedCellsOfAClosedMonthStayOnTheScreen) {
    ASSERT_TRUE(screen.open() && screen.filterBy(ShiftFilter::Unico) && screen.select(0));
    screen.sheet().type(4, PunchCell::MorningEntry, "9");
    asked.locks.closed = {"001"};
    agreeToAll();
    ASSERT_TRUE(screen.applyToAll(false));
    EXPECT_EQ(screen.sheet().text(4, PunchCell::MorningEntry), "09:00");
}

}  // namespace
}  // namespace winvrx
