#include "tests/support/card_screen.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using namespace testing;
using namespace std::chrono_literals;

const std::vector<Leave> kVacation{vacation("20/02/2024", "05/03/2024")};

TEST_F(CardScreen, ApplicationFillsTheMonth) {
    openOn(0);
    typeSchedule({"8", "12", "13", "17"});
    ASSERT_TRUE(screen.saveSchedule());
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.applyPunches());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre(kConfirm));
    const auto lines = splitLines(desk.file(kPunches));
    ASSERT_EQ(lines.size(), 32U);
    EXPECT_EQ(lines[0], "  ");
    EXPECT_EQ(lines[1], "01/sex/mar08:0012:0013:0017:00" + std::string(30, ' '));
    EXPECT_EQ(lines[29], "29/sex/mar" + std::string(35, ' ') + "FERIADO        ");
    EXPECT_EQ(lines[31], "31/dom/mar" + std::string(35, ' ') + "DESCANSO SEMANA");
    EXPECT_EQ(screen.days().totalOf(1), "08:00");
    EXPECT_EQ(screen.days().totalOf(3), "");
    EXPECT_EQ(screen.days().totalOf(HalfMonth::First), "88:00");
    EXPECT_EQ(screen.days().kindOf(29), DayKind::Holiday);
    EXPECT_EQ(screen.days().kindOf(31), DayKind::WeeklyRest);
}

const std::string kAlready =
    "! Aplicação Ponto: Já Existem Dados de Ponto Aplicados para Esse Funcionário! .";
const std::string kReplace =
    "? Aplicação Ponto: Se Prosseguir, Irá Perder todas as Alterações Feitas para este "
    "Funcionário. Deseja Substituir os Dados Já Aplicados.";
const std::string kScale =
    "! Aplicação de Ponto: Este Funcionário foi definido como ESCALA DE REVEZAMENTO!!!";
const std::string kGroup =
    "! Aplicação de Ponto: Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA DE REVEZAMENTO!!!";
const std::string kSituation =
    "? Situação: Você não informou a Situação para Essa Operação! Se deseja Informar Clique em "
    "'CANCELAR', Senão, Clique em 'OK' para Prosseguir";
const std::string kLeave =
    "? Afastamento: Este Funcionário possui Informação de Afastamento! Se Deseja desistir Clique "
    "em 'CANCELAR', Senão, Clique em 'OK' para Prosseguir";
const std::string kDates =
    "x Analise de Datas: A data de Admissão deste Funcionário não está dentro Período do Mês de de "
    "Aplicação de Ponto!";
const std::string kInactive =
    "? Aplicação Ponto: Este Funcionário está Inativo desde antes do Mês de Trabalho! Se Deseja "
    "desistir Clique em 'CANCELAR', Senão, Clique em 'OK' para Prosseguir";
const std::string kConfirmed = std::string("? Aplicação de Pontos: ") + kConfirm;
const std::string kClosed =
    "! DIGITAÇÃO DO PONTO: ATENÇÃO! Não é Possível Alterar o Ponto! Já Foi Gerada a Folha de "
    "Pagamento para este Funcionário!!";
const std::string kFailed = "x Erro: Dados incorretos!";

/// What ANA is when the command is given.
struct Situated {
    bool applied = false;
    const char* scale = "Norma";
    bool inGroup = false;
    bool scheduled = true;
    bool onLeave = false;
    const char* admission = "01/02/2020";
    bool closed = false;
    const char* inactiveSince = "";
};

struct Application {
    const char* what;
    Situated ana;
    std::vector<Answer> answers;
    std::vector<std::string> shown;
    bool done;
};

constexpr Answer kOk = Answer::Ok, kYes = Answer::Yes, kNo = Answer::No, kCancel = Answer::Cancel;
// Everything that asks or refuses, at once: the first refusal hides the others.
const Situated kTroubled{true, "12x36", true, false, true, "01/02/2020", false};

const std::vector<Application> kApplications = {
    {"nothing special", {}, {kYes}, {kConfirmed}, true},
    {"not confirmed", {}, {kNo}, {kConfirmed}, false},
    {"closed", {.applied = true, .closed = true}, {}, {kClosed}, false},
    {"applied, cancelled", {.applied = true}, {kCancel}, {kAlready, kReplace}, false},
    {"applied", {.applied = true}, {kOk, kYes}, {kAlready, kReplace, kConfirmed}, true},
    {"rotation", {.scale = "12x36"}, {}, {kScale, kGroup}, false},
    {"rotation, admitted later",
     {.scale = "5x1", .scheduled = false, .onLeave = true, .admission = "01/05/2024"},
     {},
     {kScale, kGroup},
     false},
    {"in a group", {.scale = "5x1", .inGroup = true}, {kYes}, {kConfirmed}, true},
    {"no situation, cancelled", {.scheduled = false}, {kCancel}, {kSituation}, false},
    {"no situation", {.scheduled = false}, {kOk, kYes}, {kSituation, kConfirmed}, true},
    {"leave, cancelled", {.onLeave = true}, {kCancel}, {kLeave}, false},
    {"leave", {.onLeave = true}, {kOk, kYes}, {kLeave, kConfirmed}, true},
    {"leave, admitted later",
     {.onLeave = true, .admission = "01/04/2024"},
     {kOk},
     {kLeave, kDates},
     false},
    {"inactive before, cancelled", {.inactiveSince = "29/02/2024"}, {kCancel}, {kInactive}, false},
    {"inactive before",
     {.inactiveSince = "29/02/2024"},
     {kOk, kYes},
     {kInactive, kConfirmed},
     true},
    {"inactive in the month", {.inactiveSince = "01/03/2024"}, {kYes}, {kConfirmed}, true},
    {"first of next month", {.admission = "01/04/2024"}, {}, {kDates}, false},
    {"last of this month", {.admission = "31/03/2024"}, {kYes}, {kConfirmed}, true},
    {"impossible date", {.admission = "31/02/2024"}, {}, {kFailed}, false},
    {"all of it, to the end",
     kTroubled,
     {kOk, kOk, kYes},
     {kAlready, kReplace, kLeave, kConfirmed},
     true}};

struct ApplicationChecks : CardScreen {
    void arrange(const Situated& now) {
        Employee ana = employee("001", "ANA", "Unico", now.scale);
        ana.admission = now.admission;
        hire({ana});
        asked.locks = {};
        if (now.closed) asked.locks.closed = {"001"};
        asked.rotations.months.clear();
        if (now.inGroup) asked.rotations.months[*EmployeeCode::parse("001")].days.resize(31);
        desk.file(kLeaves) =
            leaveBytes(now.onLeave ? kVacation : std::vector<Leave>(), now.inactiveSince);
        desk.files.content.erase("/data/" + kPunches);
        if (now.applied) desk.file(kPunches) = "  \r\n01/sex/mar07:00\r\n";
        desk.file(kSchedule) = now.scheduled ? "08:0012:0013:0017:00\r\n" : "";
    }
};

TEST_F(ApplicationChecks, GoInOrder) {
    for (const Application& c : kApplications) {
        arrange(c.ana);
        openOn(0);
        const auto untouched = desk.files.content;
        desk.person.shown.clear();
        desk.person.answers.assign(c.answers.begin(), c.answers.end());
        EXPECT_EQ(screen.applyPunches(), c.done) << c.what;
        EXPECT_EQ(takeShown(), c.shown) << c.what;
        EXPECT_EQ(desk.files.content == untouched, !c.done) << c.what;
    }
}

TEST_F(CardScreen, AMonthClosedWhileTheQuestionStoodIsNotFilled) {
    desk.file(kSchedule) = "08:0012:00\r\n";
    openOn(0);
    desk.person.answers = {Answer::Yes};
    desk.person.onAsk = [this] { asked.locks.closed = {"001"}; };
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.applyPunches());
    EXPECT_THAT(takeShown(), ElementsAre(kConfirmed, kClosed));
    EXPECT_EQ(desk.files.content, untouched);
}

TEST_F(CardScreen, ALeaveThatCannotBeReadStopsTheApplication) {
    desk.file(kSchedule) = "08:0012:00\r\n";
    desk.file(kLeaves) = "006 F\xC9RIAS 31/02/2024\r\n";
    openOn(0);
    desk.person.answers = {Answer::Yes};
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.applyPunches());
    EXPECT_EQ(desk.person.shown.back().detail,
              "Um afastamento não tem datas que possam ser lidas: 006 FÉRIAS 31/02/2024");
    EXPECT_EQ(desk.files.content, untouched);
}

TEST_F(CardScreen, EachDaySaysTheLeaveOrWhyItIsOutsideTheContract) {
    Leave ended = leave("008 RESCISÃO_CONTRATO_TRABALHO", "20/03/2024", "19/04/2024");
    ended.lastWorked = "20/03/2024";
    Leave hours = leave("007 ATESTADO_DECALRAÇÃO", "20/03/2024", "20/03/2024");
    hours.duration = "000 Dias e 4 Horas";
    desk.file(kLeaves) =
        leaveBytes({vacation("05/03/2024", "06/03/2024"), hours, ended}, "19/04/2024");
    Employee ana = employee("001", "ANA", "Unico", "Norma");
    ana.admission = "04/03/2024";
    hire({ana});
    std::string filled = "  \r\n";
    for (const int day : {1, 5, 20, 21})
        filled += dayLabel(plusDays(firstDay(2024y / 3), day - 1)) + "08:0012:00\r\n";
    desk.file(kPunches) = filled + "06/qua/mar" + std::string(35, ' ') + "AFASTAMENTO\r\n" +
                          "07/qui/mar" + std::string(35, ' ') + "AFASTAMENTO\r\n";
    desk.file(kSchedule) = "08:0012:0013:0017:00\r\n";
    openOn(0);
    const std::string away = "Afastamento: FÉRIAS, 05/03/2024 a 06/03/2024";
    const std::string outside = ": as horas do dia não contam e não saem no cartão.";
    struct Case {
        int day;
        DayKind kind;
        std::string said;
        std::string doubt;
    };
    for (const Case& c :
         {Case{1, DayKind::OutsideContract, "Antes da admissão em 04/03/2024",
               "Antes da admissão em 04/03/2024" + outside},
          {3, DayKind::OutsideContract, "Antes da admissão em 04/03/2024", ""},
          {4, DayKind::Work, "", ""},
          {5, DayKind::Work, away, away + ": o dia não está marcado AFASTAMENTO."},
          {6, DayKind::Leave, away, ""},
          {7, DayKind::Leave, "Nenhum afastamento registrado neste dia", ""},
          {20, DayKind::Work, "Afastamento de horas: ATESTADO DECALRAÇÃO, 000 Dias e 4 Horas", ""},
          {21, DayKind::OutsideContract, "Depois do fim do contrato em 20/03/2024",
           "Depois do fim do contrato em 20/03/2024" + outside},
          {31, DayKind::OutsideContract, "Depois do fim do contrato em 20/03/2024", ""}}) {
        EXPECT_EQ(screen.days().kindOf(c.day), c.kind) << c.day;
        EXPECT_EQ(screen.days().standingText(c.day), c.said) << c.day;
        EXPECT_EQ(screen.days().doubtAt(c.day), c.doubt) << c.day;
    }
    EXPECT_EQ(screen.days().leaveWord(6), "FÉRIAS");
    EXPECT_EQ(screen.days().leaveWord(5) + screen.days().leaveWord(7), "");
    // From 04/03 to 20/03 there are two Sundays; the 5th is worked short on a
    // leave, the 20th too.
    const HourTotals month = screen.days().hours().totals(std::nullopt);
    EXPECT_EQ(month[HourCategory::WeeklyRest], 16h);
    EXPECT_EQ(month[HourCategory::NormalDay], 8h);
    const auto explained =
        screen.days().hours().explanation(HourCategory::Missing, HalfMonth::First);
    EXPECT_EQ(explained.at(1).day, "06/qua/mar");
    EXPECT_EQ(explained.at(1).rule, "afastamento: FÉRIAS, 05/03/2024 a 06/03/2024");
    EXPECT_EQ(explained.at(2).rule, "afastamento: nenhum registrado neste dia");
}

TEST_F(CardScreen, ApplicationGivesLeavesSituationAndVariedMinutes) {
    desk.file(kLeaves) = leaveBytes(kVacation);
    openOn(0);
    screen.setSituationToApply("Dispensado");
    desk.person.answers = {Answer::Ok, Answer::Yes};
    ASSERT_TRUE(screen.applyPunches());
    EXPECT_EQ(screen.sheet().line(5).situation, "AFASTAMENTO");
    EXPECT_EQ(screen.days().kindOf(5), DayKind::Leave);
    EXPECT_EQ(screen.sheet().line(6).situation, "Dispensado");

    EXPECT_TRUE(screen.chooseMinutes(Minutes::Varied));
    EXPECT_EQ(desk.file("MinFixVar"), "1\r\n");
    typeSchedule({"8", "12", "13", "17"});
    desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes, Answer::Yes};
    ASSERT_TRUE(screen.applyPunches());
    const std::string once = desk.file(kPunches);
    EXPECT_NE(screen.sheet().line(6).morningEntry, "");
    EXPECT_NE(screen.sheet().line(6), screen.sheet().line(7));
    desk.person.answers = {Answer::Ok, Answer::Ok, Answer::Yes};
    ASSERT_TRUE(screen.applyPunches());
    EXPECT_EQ(desk.file(kPunches), once);
}

TEST_F(CardScreen, ASituationThatTheColumnWouldCutIsNotApplied) {
    openOn(0);
    screen.setSituationToApply("Dezesseis letras");
    desk.person.answers = {Answer::Yes};
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.applyPunches());
    EXPECT_EQ(desk.person.shown.back().detail, "\"Dezesseis letras\" passa de 15 caracteres.");
    EXPECT_EQ(desk.files.content, untouched);
}

TEST_F(CardScreen, ApplicationRecordsATypedScheduleFirstOrStops) {
    openOn(0);
    typeSchedule({"8", "12"});
    const auto untouched = desk.files.content;
    desk.person.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(screen.applyPunches());
    EXPECT_EQ(desk.files.content, untouched);
    desk.person.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(screen.applyPunches());
    EXPECT_EQ(screen.sheet().line(1).morningExit, "12:00");
    EXPECT_EQ(screen.schedule().text(1), "12:00");
}

TEST_F(CardScreen, PunchesThatCameWhileTheQuestionStoodAreNotReplaced) {
    // Another computer applies them while this operator reads the question.
    struct SlowOperator final : Operator {
        std::string* record = nullptr;
        std::string explanation;
        Answer ask(const Message& message) override {
            if (message.text == kConfirm) *record = "  \r\n01/sex/mar07:00\r\n";
            explanation = message.detail;
            return message.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
        }
    } slow;
    const Workplace at{desk.files, slow, desk.clock, desk.log, desk.session, desk.lock};
    CartaoPontoDados applying(at, asked.desk);
    ASSERT_TRUE(applying.open());
    ASSERT_TRUE(applying.select(0));
    slow.record = &desk.file(kPunches);
    desk.file(kPunches) = "  \r\n01/sex/mar06:00\r\n";
    EXPECT_FALSE(applying.applyPunches());
    EXPECT_EQ(desk.file(kPunches), "  \r\n01/sex/mar07:00\r\n");
    EXPECT_THAT(slow.explanation, ::testing::HasSubstr("outro computador"));
}

}  // namespace
}  // namespace winvrx
