#include "timecard/card/cartao_ponto_dados.h"

#include "tests/support/card_screen.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using namespace testing;
using namespace std::chrono_literals;

TEST_F(CardScreen, AsksForCompanyAndMonthFirst) {
    desk.files.content.erase("/data/DataIde.ivc");
    EXPECT_FALSE(screen.open());
    desk.session.company.reset();
    EXPECT_FALSE(screen.open());
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Informe um Mês de Trabalho!!", "Cadastre Primeiro Uma Empresa!!"));
}

TEST_F(CardScreen, TheMainWindowsShiftHoldsUntilAnotherIsChosen) {
    desk.session.shiftFilter = ShiftFilter::Dois;
    CartaoPontoDados opened(desk.at, asked.desk);
    ASSERT_TRUE(opened.open());
    EXPECT_EQ(opened.list().employees().size(), 1U) << "whatever the month was chosen with";
    ASSERT_TRUE(opened.filterBy(ShiftFilter::Unico));
    saveSelectedMonth(desk.store(), {2024y / 4, ShiftFilter::Dois});
    ASSERT_TRUE(opened.open());
    EXPECT_EQ(opened.list().shift(), ShiftFilter::Unico) << "the month's screen was visited";
}

TEST_F(CardScreen, ListFollowsTheShiftAndKeepsTheEmployeeChosen) {
    openOn(2);
    ASSERT_TRUE(screen.filterBy(ShiftFilter::Unico));
    ASSERT_EQ(screen.list().employees().size(), 2U);
    EXPECT_EQ(screen.selected()->name, "CAIO");
    ASSERT_TRUE(screen.filterBy(Scale::TwelveByThirtySix));
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

    desk.person.shown.clear();
    EXPECT_FALSE(screen.saveSchedule());  // closed with ESC
    EXPECT_EQ(enterAnswer(desk.person.shown.at(0)), Answer::Yes);
    EXPECT_EQ(desk.file(kSchedule)[20], '1');
    desk.person.answers = {Answer::No};
    EXPECT_TRUE(screen.saveSchedule());
    EXPECT_EQ(screen.saturdayCaption(), "Sábado(Extra)");
    EXPECT_EQ(desk.file(kSchedule)[20], '0');
}

TEST_F(CardScreen, TheSecondFlagIsRecordedAndTheOpaqueColumnsStay) {
    const std::string further = "1a2b3" + std::string(140, 'x') + "lastf";
    const std::string before = "08:0012:0013:0017:001008:0012:00          " + further + "behind";
    desk.file(kSchedule) = before;
    openOn(0);
    EXPECT_FALSE(screen.schedule().secondFlag());
    screen.schedule().setSecondFlag(true);
    EXPECT_TRUE(screen.changed());
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.saveSchedule());
    std::string after = before;
    after[21] = '1';
    EXPECT_EQ(desk.file(kSchedule), after + "\r\n");
    EXPECT_FALSE(screen.changed());
}

TEST_F(CardScreen, AClosedMonthRefusesEveryChange) {
    desk.file(kPunches) = "  \r\n01/sex/mar07:00\r\n";
    openOn(0);
    EXPECT_TRUE(screen.requireEditable());
    screen.sheet().type(4, PunchCell::MorningEntry, "8");
    asked.locks.closed = {"001"};
    const auto untouched = desk.files.content;
    EXPECT_FALSE(screen.savePunches());
    EXPECT_TRUE(screen.closed());
    EXPECT_FALSE(screen.requireEditable());
    EXPECT_EQ(desk.person.shown.back().title, "DIGITAÇÃO DO PONTO");
    EXPECT_EQ(desk.person.takeTexts().back(),
              "ATENÇÃO! Não é Possível Alterar o Ponto! Já Foi Gerada a Folha de Pagamento para "
              "este Funcionário!!");
    EXPECT_EQ(desk.files.content, untouched);
    EXPECT_TRUE(screen.list().marks(0).closed);
    EXPECT_FALSE(screen.list().marks(1).closed);
}

TEST_F(CardScreen, ADayOfWorkEmptiedWithoutASituationIsAskedAbout) {
    desk.file(kSchedule) = "08:0012:0013:0017:00\r\n";
    desk.file(kPunches) =
        "  \r\n04/seg/mar08:0012:00\r\n05/ter/mar08:0012:00\r\n09/s\xE1"
        "b/mar08:00\r\n"
        "29/sex/mar08:00\r\n";
    openOn(0);
    const auto empty = [this](int day) {
        for (const PunchCell cell : kPunchCells)
            screen.sheet().type(day, cell, "");
    };
    empty(4);
    empty(5);
    empty(9);   // a Saturday that the schedule leaves free
    empty(29);  // a holiday
    screen.sheet().type(5, PunchCell::Situation, "Falta");
    const auto untouched = desk.files.content;
    desk.person.answers = {Answer::Cancel};
    EXPECT_FALSE(screen.savePunches());
    EXPECT_EQ(screen.daysWithoutSituation(), std::vector<int>{4});
    EXPECT_EQ(desk.person.shown.back().detail,
              "04/seg/mar ficou sem horas e sem situação. 'OK' grava assim mesmo, 'CANCELAR' volta "
              "à digitação.");
    EXPECT_THAT(takeShown(), ElementsAre("! DIGITAÇÃO DO PONTO: Informe o Tipo de Situação!"));
    EXPECT_EQ(desk.files.content, untouched);
    desk.person.answers = {Answer::Ok};
    EXPECT_TRUE(screen.savePunches());
    EXPECT_TRUE(screen.sheet().isBlank(4));
}

TEST_F(CardScreen, SavingPunchesWritesThePeriodsRecord) {
    MonthSettings march = screen.settings();
    march.month = 2024y / 3;
    march.fixedMonth = false;
    march.closingDay = 21;
    saveMonthSettings(desk.store(), march);
    desk.file(kPunches) =
        "  \r\n04/seg/mar08:0012:00  " + std::string(23, ' ') + "as ten chars   and the rest\r\n";
    openOn(0);
    screen.sheet().type(5, PunchCell::MorningEntry, "8");
    ASSERT_TRUE(screen.savePunches());
    const auto period = splitLines(desk.file("01001-03-2024.prd"));
    ASSERT_EQ(period.size(), 30U);
    EXPECT_EQ(period[13], splitLines(desk.file(kPunches))[4]);
    EXPECT_THAT(period[13], ::testing::EndsWith("as ten chars   and the rest"));
    EXPECT_EQ(period[14].substr(0, 15), "05/ter/mar08:00");
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
    EXPECT_EQ(screen.days().kindOf(6), DayKind::Absence);
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

TEST_F(CardScreen, LeavingAnEditedCardAsksFirst) {
    struct Case {
        Answer answer;
        bool leaves;
        bool records;
    };
    for (const Case& c : {Case{Answer::Cancel, false, false}, Case{Answer::No, true, false},
                          Case{Answer::Yes, true, true}}) {
        desk.files.content.erase("/data/" + kPunches);
        CartaoPontoDados other(desk.at, asked.desk);
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
    saveSelectedMonth(desk.store(), {2024y / 4, ShiftFilter::Todos});
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
