#include "timecard/cartao_ponto_dados.h"

#include "tests/support/test_workplace.h"
#include "timecard/selected_month.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::TestWorkplace;
using namespace std::chrono_literals;

const std::string kPunches = "01001-03-2024.bdx";
const std::string kSchedule = "01PadrHor001.pdx";
const char* const kConfirm =
    "Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão para o Item Selecionado?";

Employee employee(const char* code, const char* name, const char* shift, const char* scale) {
    Employee one;
    one.code = code;
    one.name = name;
    one.shift = shift;
    one.scale = scale;
    one.admission = "01/02/2020";
    return one;
}

/// A company of three, with March 2024 chosen and Good Friday ticked.
struct CardScreen : ::testing::Test {
    TestWorkplace desk;
    CartaoPontoDados screen{desk.at};

    void SetUp() override {
        hire({employee("001", "ANA", "Unico", "Norma"), employee("002", "BIA", "Dois", "12x36"),
              employee("003", "CAIO", "Unico", "Norma")});
        MonthSettings march;
        march.month = 2024y / 3;
        march.setHoliday(*parseDate("29/03/2024"), true);
        saveMonthSettings(desk.files, desk.session.folder, march);
        saveSelectedMonth(desk.files, desk.session.folder, {2024y / 3, ShiftFilter::Todos});
    }

    void hire(const std::vector<Employee>& people) {
        std::vector<std::string> lines;
        for (const Employee& one : people)
            lines.push_back(encode(one));
        desk.file("01CartaPonto") = joinedLines(lines);
    }

    void openOn(std::size_t position) {
        ASSERT_TRUE(screen.open());
        ASSERT_TRUE(screen.select(position));
    }

    void typeSchedule(std::vector<const char*> times) {
        for (std::size_t i = 0; i < times.size(); ++i)
            screen.schedule().type(i, times[i]);
    }

    [[nodiscard]] std::vector<std::string> titles() const {
        std::vector<std::string> titles;
        for (const Message& message : desk.person.shown)
            titles.push_back(message.title);
        return titles;
    }
};

TEST_F(CardScreen, AsksForCompanyAndMonthFirst) {
    desk.files.content.erase("/data/DataIde.ivc");
    EXPECT_FALSE(screen.open());
    desk.session.company.reset();
    EXPECT_FALSE(screen.open());
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Informe um Mês de Trabalho!!", "Cadastre Primeiro Uma Empresa!!"));
}

TEST_F(CardScreen, ListFollowsTheShiftAndKeepsTheEmployeeChosen) {
    openOn(2);
    ASSERT_TRUE(screen.filterBy(ShiftFilter::Unico));
    ASSERT_EQ(screen.employees().size(), 2U);
    EXPECT_EQ(screen.selected()->name, "CAIO");
    ASSERT_TRUE(screen.filterBy(ShiftFilter::Dois));
    EXPECT_EQ(screen.selected(), nullptr);
    EXPECT_FALSE(screen.applyPunches());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Selecione um Funcionário na Lista!"));
}

TEST_F(CardScreen, ScheduleIsSavedWithTheAnswerOnSaturday) {
    openOn(0);
    typeSchedule({"8", "12", "13", "1700", "8:0", "12"});
    EXPECT_EQ(screen.weeklyCaption(), "40,0 HORAS SEMANAIS");
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.saveSchedule());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("No SÁBADO Será HORA NORMAL?"));
    EXPECT_EQ(screen.saturdayCaption(), "Sábado(Normal)");
    EXPECT_EQ(screen.weeklyCaption(), "44,0 HORAS SEMANAIS");
    EXPECT_EQ(screen.monthlyCaption(), "220,0 HORAS MENSAIS");
    EXPECT_EQ(desk.file(kSchedule),
              "08:0012:0013:0017:001008:0012:00" + std::string(160, ' ') + "\r\n");
    EXPECT_FALSE(screen.changed());

    EXPECT_TRUE(screen.saveSchedule());  // answered No
    EXPECT_EQ(screen.saturdayCaption(), "Sábado(Extra)");
    EXPECT_EQ(desk.file(kSchedule)[20], '0');
}

TEST_F(CardScreen, AnInvalidScheduleTimeIsRefused) {
    openOn(0);
    typeSchedule({"8", "25:00"});
    EXPECT_FALSE(screen.saveSchedule());
    EXPECT_EQ(desk.person.shown.back().title, "Erro");
    EXPECT_EQ(desk.person.shown.back().detail, "\"25:00\" não é uma hora de 00:00 a 23:59.");
    EXPECT_FALSE(desk.files.content.contains("/data/" + kSchedule));
    EXPECT_EQ(screen.schedule().text(1), "25:00");
}

TEST_F(CardScreen, ARecordedTimeThatIsNoneIsShownAndNeverLost) {
    const std::string damaged = "08:0012h0013:0017:0000" + std::string(170, ' ') + "\r\n";
    desk.file(kSchedule) = damaged;
    openOn(0);
    EXPECT_EQ(screen.schedule().text(1), "12h00");
    EXPECT_FALSE(screen.changed());
    desk.person.answers = {Answer::Yes};
    for (const bool done : {screen.saveSchedule(), screen.applyPunches()}) {
        EXPECT_FALSE(done);
        EXPECT_EQ(desk.person.shown.back().detail, "\"12h00\" não é uma hora de 00:00 a 23:59.");
    }
    EXPECT_EQ(desk.file(kSchedule), damaged);
    screen.schedule().type(1, "");
    EXPECT_TRUE(screen.saveSchedule());
    EXPECT_EQ(desk.file(kSchedule).substr(0, 15), "08:00     13:00");
}

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
    EXPECT_EQ(screen.totalOf(1), "08:00");
    EXPECT_EQ(screen.totalOf(3), "");
    EXPECT_EQ(screen.totalOf(HalfMonth::First), "88:00");
    EXPECT_EQ(screen.kindOf(29), DayKind::Holiday);
    EXPECT_EQ(screen.kindOf(31), DayKind::WeeklyRest);
}

TEST_F(CardScreen, ApplicationChecksInOrder) {
    const std::string before = "  \r\n01/sex/mar07:00\r\n";
    struct Case {
        const char* what;
        std::size_t position;
        bool applied;
        const char* admission;
        std::vector<Answer> answers;
        std::vector<std::string> titles;
        bool done;
    };
    const std::string again = "Aplicação Ponto", scale = "Aplicação de Ponto",
                      dates = "Analise de Datas", confirm = "Aplicação de Pontos";
    for (const Case& c : std::vector<Case>{
             {"applied, cancelled", 0, true, "01/02/2020", {Answer::Cancel}, {again, again}, false},
             {"applied, not confirmed",
              0,
              true,
              "01/02/2020",
              {Answer::Ok, Answer::No},
              {again, again, confirm},
              false},
             {"applied, replaced",
              0,
              true,
              "01/02/2020",
              {Answer::Ok, Answer::Yes},
              {again, again, confirm},
              true},
             {"rotation", 1, false, "01/02/2020", {}, {scale, scale}, false},
             {"rotation, admitted later", 1, false, "01/05/2024", {}, {scale, scale}, false},
             {"first of next month", 0, false, "01/04/2024", {}, {dates}, false},
             {"last of this month", 0, false, "31/03/2024", {Answer::Yes}, {confirm}, true},
             {"impossible date", 0, false, "31/02/2024", {}, {"Erro"}, false},
             {"not confirmed", 0, false, "01/02/2020", {}, {confirm}, false}}) {
        auto people = std::vector{employee("001", "ANA", "Unico", "Norma"),
                                  employee("002", "BIA", "Dois", "12x36")};
        people[c.position].admission = c.admission;
        hire(people);
        desk.files.content.erase("/data/" + kPunches);
        if (c.applied) desk.file(kPunches) = before;
        openOn(c.position);
        const auto untouched = desk.files.content;
        desk.person.shown.clear();
        desk.person.answers.assign(c.answers.begin(), c.answers.end());
        EXPECT_EQ(screen.applyPunches(), c.done) << c.what;
        EXPECT_EQ(titles(), c.titles) << c.what;
        EXPECT_EQ(desk.files.content == untouched, !c.done) << c.what;
    }
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

TEST_F(CardScreen, EditedCellsAreSavedAndWrongOnesRefusedInPlace) {
    desk.file(kPunches) = "  \r\n01/sex/marfolga12:00\r\n";
    openOn(0);
    CardSheet& sheet = screen.sheet();
    sheet.type(4, PunchCell::MorningEntry, "8");
    sheet.type(5, PunchCell::MorningEntry, "25");
    sheet.type(6, PunchCell::Situation, "Falta Injustificada");
    EXPECT_EQ(sheet.text(4, PunchCell::MorningEntry), "08:00");
    EXPECT_EQ(sheet.findingAt(5, PunchCell::MorningEntry),
              "\"25\" não é uma hora de 00:00 a 23:59.");
    EXPECT_EQ(sheet.findingAt(1, PunchCell::MorningEntry), "");  // stood in the record
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.savePunches());
    EXPECT_EQ(desk.person.shown.back().title, "DIGITAÇÃO DO PONTO");
    EXPECT_EQ(desk.person.shown.back().detail,
              "05/ter/mar: \"25\" não é uma hora de 00:00 a 23:59.");
    EXPECT_EQ(desk.files.content, untouched);
    EXPECT_EQ(sheet.text(5, PunchCell::MorningEntry), "25");

    sheet.type(5, PunchCell::MorningEntry, "");
    EXPECT_TRUE(screen.savePunches());
    const auto lines = splitLines(desk.file(kPunches));
    EXPECT_EQ(lines[1].substr(0, 20), "01/sex/marfolga12:00");
    EXPECT_EQ(lines[4].substr(0, 15), "04/seg/mar08:00");
    EXPECT_EQ(lines[6].substr(45), "Falta Injustifi");
    EXPECT_EQ(screen.kindOf(6), DayKind::Absence);
    EXPECT_FALSE(screen.changed());
}

TEST_F(CardScreen, WhatTheColumnWouldCutOrTheRecordCannotHoldIsRefused) {
    openOn(0);
    for (const char* situation : {"Dezesseis letras", "😀", "um\ndois"}) {
        screen.sheet().type(6, PunchCell::Situation, situation);
        EXPECT_FALSE(screen.savePunches()) << situation;
        EXPECT_FALSE(desk.files.content.contains("/data/" + kPunches)) << situation;
    }
}

TEST_F(CardScreen, AnotherMachinesChangeIsNotOverwritten) {
    openOn(0);
    screen.sheet().type(4, PunchCell::MorningEntry, "8");
    typeSchedule({"9"});
    desk.file(kPunches) = "  \r\n01/sex/mar07:00\r\n";
    desk.file(kSchedule) = "07:00\r\n";
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.savePunches());
    EXPECT_FALSE(screen.saveSchedule());
    EXPECT_EQ(desk.files.content, untouched);
    desk.person.shown.clear();
    desk.person.answers = {Answer::Cancel};
    EXPECT_FALSE(screen.applyPunches());
    EXPECT_THAT(titles(), ElementsAre("Aplicação Ponto", "Aplicação Ponto"));
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
    CartaoPontoDados applying(at);
    ASSERT_TRUE(applying.open());
    ASSERT_TRUE(applying.select(0));
    slow.record = &desk.file(kPunches);
    desk.file(kPunches) = "  \r\n01/sex/mar06:00\r\n";
    EXPECT_FALSE(applying.applyPunches());
    EXPECT_EQ(desk.file(kPunches), "  \r\n01/sex/mar07:00\r\n");
    EXPECT_THAT(slow.explanation, ::testing::HasSubstr("outro computador"));
}

TEST_F(CardScreen, LeavingAnEditedCardAsksFirst) {
    struct Case {
        Answer answer;
        bool leaves;
        bool records;
    };
    for (const Case& c : {Case{Answer::Cancel, false, false}, Case{Answer::No, true, false},
                          Case{Answer::Yes, true, true}}) {
        desk.files.content.erase("/data/" + kPunches);
        CartaoPontoDados other(desk.at);
        ASSERT_TRUE(other.open() && other.select(0));
        other.sheet().type(4, PunchCell::MorningEntry, "8");
        desk.person.answers = {c.answer};
        EXPECT_EQ(other.select(2), c.leaves);
        EXPECT_EQ(other.selectedPosition(), c.leaves ? 2U : 0U);
        EXPECT_EQ(desk.files.content.contains("/data/" + kPunches), c.records);
    }
}

TEST_F(CardScreen, AFailingDiskLeavesTheMonthOnTheScreen) {
    openOn(0);
    screen.sheet().type(4, PunchCell::MorningEntry, "8");
    desk.files.failOn = {"01CartaPonto"};
    saveSelectedMonth(desk.files, desk.session.folder, {2024y / 4, ShiftFilter::Todos});
    EXPECT_FALSE(screen.open());
    EXPECT_EQ(screen.settings().month, 2024y / 3);
    EXPECT_EQ(screen.sheet().text(4, PunchCell::MorningEntry), "08:00");
}

TEST(HalfMonths, LastDays) {
    EXPECT_EQ(daysOf(HalfMonth::First, 2024y / 2).last, 15);
    EXPECT_EQ(daysOf(HalfMonth::Second, 2024y / 2).last, 29);
    EXPECT_EQ(daysOf(HalfMonth::Second, 2026y / 2).last, 28);
    EXPECT_EQ(daysOf(HalfMonth::Second, 2024y / 3).first, 16);
}

}  // namespace
}  // namespace winvrx
