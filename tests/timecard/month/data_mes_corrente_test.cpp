#include "timecard/month/data_mes_corrente.h"

#include "tests/support/test_workplace.h"
#include "timecard/month/selected_month.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::TestWorkplace;
using namespace std::chrono_literals;

const std::string kMarch = "03-2024ds.rdx";

/// The screen as it opens at the desk of 15/03/2024.
struct MonthScreen : ::testing::Test {
    TestWorkplace desk;
    DataMesCorrente screen{desk.at};

    void SetUp() override { screen.open(); }
    void tick(const char* date) { screen.tick(*parseDate(date), true); }
    [[nodiscard]] std::vector<std::string> ticked() const {
        std::vector<std::string> texts;
        for (const ListedHoliday& one : screen.holidays())
            texts.push_back(dateText(one.date) + " " + one.name);
        return texts;
    }
};

const MonthNumberField& fieldOf(std::string MonthNumbers::*typed) {
    for (const MonthNumberField& field : kMonthNumberFields)
        if (field.typed == typed) return field;
    throw std::logic_error("no such field");
}

TEST_F(MonthScreen, OpensOnTheSelectedMonthElseOnThePresentOne) {
    EXPECT_EQ(screen.settings().month, 2024y / 3);
    desk.session.lastMonth = 2024y / 1;
    screen.open();
    EXPECT_EQ(screen.monthCaption(), "JANEIRO/2024");
    saveSelectedMonth(desk.store(), {2023y / 12, ShiftFilter::Todos});
    screen.open();
    EXPECT_EQ(screen.monthCaption(), "DEZEMBRO/2023");
    EXPECT_EQ(screen.holidayHeading(), "Selecione os feriados no mês de: DEZEMBRO/2023");
}

TEST_F(MonthScreen, TheTwelveMonthsStandInCapitals) {
    std::string captions;
    for (unsigned month = 1; month <= 12; ++month) {
        ASSERT_TRUE(screen.chooseMonth(2013y / std::chrono::month{month}));
        captions += screen.monthCaption() + " ";
    }
    EXPECT_EQ(captions,
              "JANEIRO/2013 FEVEREIRO/2013 MARÇO/2013 ABRIL/2013 MAIO/2013 JUNHO/2013 JULHO/2013 "
              "AGOSTO/2013 SETEMBRO/2013 OUTUBRO/2013 NOVEMBRO/2013 DEZEMBRO/2013 ");
}

TEST_F(MonthScreen, ReferenceGoesRoundAndNamesItself) {
    std::vector<std::string> captions;
    for (int i = 0; i < 4; ++i) {
        captions.emplace_back(screen.referenceCaption());
        ASSERT_TRUE(screen.chooseNextReference());
    }
    EXPECT_THAT(captions,
                ElementsAre("Referente ao Mês: Atual", "Referente ao Mês: Atual ao Posterior",
                            "Referente ao Mês: Anterior ao Atual", "Referente ao Mês: Atual"));
}

TEST_F(MonthScreen, GridShowsTheDaysOfTheMonthOnly) {
    struct Case {
        WorkMonth month;
        std::size_t first;
        std::size_t last;
    };
    for (const Case& c : {Case{2026y / 2, 0, 27}, Case{2024y / 6, 6, 35}, Case{2024y / 2, 4, 32}}) {
        ASSERT_TRUE(screen.chooseMonth(c.month));
        for (std::size_t cell = 0; cell < kHolidayCells; ++cell)
            EXPECT_EQ(screen.dateOfCell(cell).has_value(), cell >= c.first && cell <= c.last)
                << monthKey(c.month) << " cell " << cell;
        EXPECT_EQ(screen.dateOfCell(c.last), lastDay(c.month));
    }
}

TEST_F(MonthScreen, CaptionOfThePercentageFollowsSwitchAndNumbers) {
    EXPECT_EQ(screen.differentiatedCaption(),
              "Usar Percentual de Horas Extras Diárias Normais de 50% até 2 hs. Acima de 2 hs será "
              "de 100%.");
    screen.setDifferentiatedPercent(true);
    screen.type(fieldOf(&MonthNumbers::minimumPercent), "60");
    screen.type(fieldOf(&MonthNumbers::threshold), "3");
    EXPECT_EQ(screen.differentiatedCaption(),
              "Ativado o uso de Percentual de Horas Extras Diárias Normais Diferenciado. Será de "
              "60% até 3 hs Extras diárias. Acima de 3 hs Extras será de 100%.");
    screen.setDifferentiatedPercent(false);
    EXPECT_EQ(screen.differentiatedCaption(),
              "Desativado o uso de Percentual de Horas Extras Diárias Normais Diferenciado");
    screen.setMode(OvertimeMode::SingleLevel);
    screen.type(fieldOf(&MonthNumbers::maximumPercent), "120");
    EXPECT_EQ(screen.modeNotice(),
              "Usar Somente 1 (um) Único Percentual de Horas Extras para 120%");
}

TEST_F(MonthScreen, AMonthWithoutARecordIsOfferedTheRulesOfTheLastRecordedOne) {
    EXPECT_EQ(screen.offeredRules(), std::nullopt);
    MonthSettings rules;
    rules.closingDay = 21;
    rules.fixedMonth = false;
    rules.overtime.minimumPercent = 60;
    rules.setHoliday(*parseDate("01/01/2024"), true);
    for (const auto month : {2023y / 11, 2024y / 1, 2024y / 5}) {
        rules.month = month;
        rules.overtime.maximumPercent = month == 2024y / 1 ? 120 : 110;
        saveMonthSettings(desk.store(), rules);
    }
    desk.file("xx-2024ds.rdx") = "1\r\n";
    screen.open();
    EXPECT_EQ(screen.offeredRules(), 2024y / 1);
    EXPECT_FALSE(screen.changed());
    screen.takeOfferedRules();
    EXPECT_EQ(screen.offeredRules(), std::nullopt);
    EXPECT_EQ(screen.numbers().maximumPercent, "120");
    EXPECT_EQ(screen.closingPeriodText(), "21/02/2024 a 20/03/2024");
    EXPECT_TRUE(screen.holidays().empty());
    screen.type(fieldOf(&MonthNumbers::minimumPercent), "x");
    EXPECT_EQ(screen.offeredRules(), 2024y / 1);
    screen.takeOfferedRules();
    EXPECT_TRUE(screen.record());
    EXPECT_EQ(loadMonthSettings(desk.store(), 2024y / 3).overtime.minimumPercent, 60);
    ASSERT_TRUE(screen.chooseMonth(2024y / 1));
    EXPECT_EQ(screen.offeredRules(), std::nullopt);
}

TEST_F(MonthScreen, RecordsAndConfirms) {
    tick("19/03/2024");
    screen.tickOffer();
    screen.type(fieldOf(&MonthNumbers::nightMaximumPercent), " 130 ");
    screen.setTotalsFormat(TotalsFormat::DecimalHours);
    EXPECT_TRUE(screen.changed());
    EXPECT_TRUE(screen.record());
    EXPECT_FALSE(screen.changed());
    EXPECT_FALSE(desk.files.content.contains("/data/DataIde.ivc"));
    const auto written = loadMonthSettings(desk.store(), 2024y / 3);
    EXPECT_THAT(written.holidays(),
                ElementsAre(*parseDate("19/03/2024"), *parseDate("29/03/2024")));
    EXPECT_EQ(written.overtime.nightMaximumPercent, 130);
    EXPECT_EQ(written.overtime.totalsFormat, TotalsFormat::DecimalHours);

    desk.session.shiftFilter = ShiftFilter::Tres;
    EXPECT_TRUE(screen.confirm());
    EXPECT_EQ(desk.file("DataIde.ivc"), "03-2024\r\nTres\r\n");
    EXPECT_EQ(desk.session.lastMonth, 2024y / 3);
    EXPECT_TRUE(desk.person.shown.empty());
}

TEST_F(MonthScreen, ANumberOutOfRangeIsRefusedAndNothingIsWritten) {
    screen.tickOffer();
    ASSERT_TRUE(screen.confirm());
    const auto before = desk.files.content;
    for (const MonthNumberField& field : kMonthNumberFields) {
        const std::string good = screen.numbers().*field.typed;
        for (const char* typed : {"", "abc", "5,5,5", "-1", "1000", "50%", "99999999999999"}) {
            screen.type(field, typed);
            EXPECT_FALSE(screen.findingOf(field).empty()) << typed;
            EXPECT_FALSE(screen.confirm()) << field.caption << typed;
            ASSERT_EQ(desk.person.shown.size(), 1U);
            const Message& refusal = desk.person.shown.back();
            EXPECT_EQ(refusal.title, "Erro");
            EXPECT_EQ(refusal.text, "Dados incorretos!");
            EXPECT_THAT(refusal.detail, ::testing::HasSubstr(": informe um número de "));
            desk.person.shown.clear();
        }
        screen.type(field, good);
        EXPECT_EQ(screen.findingOf(field), "");
    }
    EXPECT_EQ(desk.files.content, before);
}

TEST_F(MonthScreen, WithoutGravacaoTheTicksOnRecordStay) {
    screen.tickOffer();
    ASSERT_TRUE(screen.record());
    screen.clearTicks();
    tick("29/03/2024");
    tick("19/03/2024");
    EXPECT_EQ(screen.offerNotice(), "");
    screen.setRecordTicks(false);
    ASSERT_TRUE(screen.record());
    EXPECT_FALSE(screen.changed());
    EXPECT_THAT(std::string(screen.offerNotice()), ::testing::StartsWith("As marcas dos feriados"));
    screen.clearTicks();
    EXPECT_EQ(screen.counts().restDays, 5);
    EXPECT_THAT(std::string(screen.offerNotice()), ::testing::StartsWith("Há feriados sugeridos"));
    screen.restoreTicks();
    EXPECT_THAT(screen.settings().holidays(), ElementsAre(*parseDate("29/03/2024")));
    EXPECT_EQ(screen.offerNotice(), "");
    screen.restoreTicks();
    EXPECT_THAT(screen.settings().holidays(), ElementsAre(*parseDate("29/03/2024")));
    screen.setRecordTicks(true);
    screen.clearTicks();
    ASSERT_TRUE(screen.record());
    EXPECT_THAT(loadMonthSettings(desk.store(), 2024y / 3).holidays(), ::testing::IsEmpty());
}

TEST_F(MonthScreen, AMonthChangedElsewhereMeanwhileIsNotOverwritten) {
    MonthSettings elsewhere = screen.settings();
    elsewhere.closingDay = 21;
    saveMonthSettings(desk.store(), elsewhere);
    const auto untouched = desk.files.content;
    tick("29/03/2024");
    EXPECT_FALSE(screen.record());
    EXPECT_FALSE(screen.confirm());
    EXPECT_EQ(desk.files.content, untouched);
    EXPECT_EQ(desk.person.shown.back().detail,
              "Este mês foi alterado por outro computador. Abra a tela novamente.");
}

TEST_F(MonthScreen, AMonthWithoutARecordIsEmptyAndIsOfferedItsHolidays) {
    desk.file("Feriados") = "19/03      S\xC3O JOS\xC9\r\n";
    screen.open();
    EXPECT_FALSE(screen.isRecorded());
    EXPECT_THAT(ticked(), ::testing::IsEmpty());
    EXPECT_EQ(screen.untickedHolidays().size(), 2U);
    EXPECT_EQ(screen.counts().restDays, 5);
    EXPECT_THAT(std::string(screen.offerNotice()), ::testing::StartsWith("Há feriados sugeridos"));
    EXPECT_FALSE(screen.changed());
    EXPECT_TRUE(screen.mayLeave());
    tick("20/03/2024");
    screen.tickOffer();
    EXPECT_THAT(ticked(),
                ElementsAre("19/03/2024 SÃO JOSÉ", "20/03/2024 ", "29/03/2024 Sexta-feira Santa"));
    EXPECT_EQ(screen.offerNotice(), "");
    EXPECT_TRUE(screen.changed());
    screen.restoreTicks();
    EXPECT_THAT(ticked(), ::testing::IsEmpty());
    EXPECT_FALSE(screen.changed());
}

TEST_F(MonthScreen, ConfirmaAsksOnceAboutAnOfferLeftUnticked) {
    struct Case {
        std::deque<Answer> answers;  ///< Cancel, then a second "Confirma" that is not asked
        std::size_t holidays;
    };
    for (const Case& c : {Case{{Answer::Yes}, 1}, Case{{Answer::No}, 0}, Case{{}, 0}}) {
        desk.files.content.clear();
        screen.open();
        desk.person.answers = c.answers;
        const bool cancelled = c.answers.empty();
        EXPECT_EQ(screen.confirm(), !cancelled);
        EXPECT_EQ(desk.files.content.empty(), cancelled);
        ASSERT_TRUE(screen.confirm());
        ASSERT_EQ(desk.person.shown.size(), 1U);
        EXPECT_EQ(desk.person.shown[0].detail, "29/03/2024 Sexta-feira Santa");
        EXPECT_EQ(loadMonthSettings(desk.store(), 2024y / 3).holidays().size(), c.holidays);
        desk.person.shown.clear();
    }
}

TEST_F(MonthScreen, DaysKeptByCustomAreNamedButNotTicked) {
    ASSERT_TRUE(screen.chooseMonth(2024y / 2));
    EXPECT_THAT(ticked(), ::testing::IsEmpty());
    EXPECT_EQ(screen.untickedHolidays().size(), 2U);
    EXPECT_EQ(screen.nameOf(*parseDate("13/02/2024")), "Carnaval");
}

TEST_F(MonthScreen, AnOfferNeverChangesARecordedMonth) {
    desk.file(kMarch) = "";
    const auto before = desk.files.content;
    screen.open();
    EXPECT_TRUE(screen.isRecorded());
    EXPECT_THAT(ticked(), ::testing::IsEmpty());
    desk.file("Feriados") = "19/03      PADROEIRO\r\n";
    screen.reloadOffer();
    EXPECT_THAT(ticked(), ::testing::IsEmpty());
    EXPECT_EQ(screen.untickedHolidays().size(), 2U);
    EXPECT_FALSE(screen.changed());
    desk.files.content.erase("/data/Feriados");
    EXPECT_EQ(desk.files.content, before);
}

TEST_F(MonthScreen, AChangedListChangesWhatIsOfferedAndNoTick) {
    tick("20/03/2024");
    desk.file("Feriados") = "19/03      PADROEIRO\r\n";
    screen.reloadOffer();
    EXPECT_THAT(ticked(), ElementsAre("20/03/2024 "));
    EXPECT_EQ(screen.untickedHolidays().size(), 2U);
    desk.file("Feriados") = "";
    screen.reloadOffer();
    EXPECT_EQ(screen.untickedHolidays().size(), 1U);
}

TEST_F(MonthScreen, AMonthRecordedElsewhereMeanwhileIsNotOverwritten) {
    desk.file(kMarch) = "";
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(screen.confirm());
    EXPECT_EQ(desk.file(kMarch), "");
    EXPECT_FALSE(desk.files.content.contains("/data/DataIde.ivc"));
}

TEST_F(MonthScreen, LinesNotUnderstoodAreShownUntilTheyArePutRight) {
    std::vector<std::string> lines(54, "0");
    lines[42] = "50%";
    lines[53] = "alheia";
    desk.file(kMarch) = joinedLines(lines);
    screen.open();
    EXPECT_THAT(screen.unreadLines(),
                ElementsAre(UnreadLine{43, "50%"}, UnreadLine{52, "0"}, UnreadLine{54, "alheia"}));
    screen.type(fieldOf(&MonthNumbers::minimumPercent), "60");
    ASSERT_TRUE(screen.record());
    EXPECT_THAT(screen.unreadLines(), ElementsAre(UnreadLine{52, "0"}, UnreadLine{54, "alheia"}));
}

TEST_F(MonthScreen, ClosingPeriodFollowsWhatIsTyped) {
    EXPECT_EQ(screen.closingPeriodText(), "01/03/2024 a 31/03/2024");
    screen.setFixedMonth(false);
    screen.type(fieldOf(&MonthNumbers::closingDay), "21");
    EXPECT_EQ(screen.closingPeriodText(), "21/02/2024 a 20/03/2024");
    screen.type(fieldOf(&MonthNumbers::closingDay), "32");
    EXPECT_EQ(screen.closingPeriodText(), "");
}

TEST_F(MonthScreen, ChangesAreGivenUpOnlyWhenTheOperatorSaysSo) {
    tick("19/03/2024");
    EXPECT_FALSE(screen.chooseMonth(2024y / 4));
    EXPECT_EQ(screen.settings().month, 2024y / 3);
    EXPECT_FALSE(screen.mayLeave());
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.chooseMonth(2024y / 4));
    EXPECT_EQ(screen.settings().month, 2024y / 4);
    EXPECT_TRUE(desk.files.content.empty());
}

TEST_F(MonthScreen, AFailingDiskIsToldAndTheScreenKeepsItsChanges) {
    desk.file(kMarch) = "";
    screen.open();
    tick("29/03/2024");
    desk.files.failOn = {kMarch};
    EXPECT_FALSE(screen.record());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Dados incorretos!"));
    EXPECT_EQ(desk.log.entries.size(), 1U);
    EXPECT_TRUE(screen.changed());
    EXPECT_EQ(desk.file(kMarch), "");
}

}  // namespace
}  // namespace winvrx
