#include "timecard/month/business_days.h"

#include "tests/support/test_workplace.h"
#include "timecard/month/month_overview.h"
#include "timecard/month/selected_month.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;

MonthSettings monthWith(const char* month, std::initializer_list<const char*> holidays) {
    MonthSettings settings;
    settings.month = *parseMonthKey(month);
    for (const char* holiday : holidays)
        settings.setHoliday(*parseDate(holiday), true);
    return settings;
}

TEST(BusinessDays, EveryDayCountsOnce) {
    struct Case {
        MonthSettings settings;
        int businessDays;
        int restDays;
    };
    for (const Case& c :
         {Case{monthWith("03-2024", {}), 26, 5}, Case{monthWith("03-2024", {"29/03/2024"}), 25, 6},
          Case{monthWith("03-2024", {"30/03/2024"}), 25, 6},  // Saturday
          Case{monthWith("03-2024", {"31/03/2024"}), 26, 5},  // Sunday
          Case{monthWith("02-2024", {"29/02/2024"}), 24, 5},
          Case{monthWith("06-2024", {"01/06/2024", "30/06/2024"}), 24, 6},
          Case{monthWith("02-2026", {}), 24, 4}}) {
        const MonthDayCounts counts = countDays(c.settings);
        EXPECT_EQ(counts.businessDays, c.businessDays) << monthKey(c.settings.month);
        EXPECT_EQ(counts.restDays, c.restDays) << monthKey(c.settings.month);
    }
}

TEST(BusinessDays, EachDayOfAMonthHasItsLine) {
    // Sundays 3, 10, 17, 24, 31; holidays on a Tuesday, a Friday and a Sunday.
    const MonthSettings march = monthWith("03-2024", {"19/03/2024", "29/03/2024", "31/03/2024"});
    const std::vector<std::string> ordinals = {"PRIMEIRO", "SEGUNDO", "TERCEIRO", "QUARTO",
                                               "QUINTO"};
    int number = 0;
    for (int day = 1; day <= 31; ++day) {
        const Date date = plusDays(firstDay(march.month), day - 1);
        const bool rest = day % 7 == 3 || day == 19 || day == 29;
        if (!rest) ++number;
        std::string line = "Hoje é o(a) " + std::to_string(day) + " do Mês e, " +
                           std::to_string(number) + "º Dia Útil do Mes de março";
        if (rest) line = "Hoje,  dia " + dateText(date) + ", não é Dia Útil do Mes";
        if (!rest && number <= 5)
            line =
                "Hoje é o " + ordinals[static_cast<std::size_t>(number - 1)] + " Dia Últil do Mes";
        if (day == 30) line = "Hoje é o ÚLTIMO Dia Últil do Mes";
        EXPECT_EQ(businessDayNotices(march, monthWith("04-2024", {}), date).front(), line);
    }
    EXPECT_EQ(number, countDays(march).businessDays);
}

TEST(BusinessDays, LooksAheadOverRestDaysAndTheMonthsEnd) {
    struct Case {
        const char* today;
        std::vector<std::string> ahead;
    };
    const MonthSettings march = monthWith("03-2024", {"29/03/2024"});
    const MonthSettings april = monthWith("04-2024", {"02/04/2024"});
    for (const Case& c :
         {Case{"01/03/2024",
               {"Para Amanhã,  dia 02/03/2024, SEGUNDO Dia Últil do Mes",
                "Para,  dia 04/03/2024, TERCEIRO Dia Últil do Mes",
                "Para,  dia 05/03/2024, QUARTO Dia Últil do Mes"}},
          Case{"10/03/2024",
               {"Para Amanhã,  dia 11/03/2024, 9º Dia Útil do Mes de março",
                "Para Depois de Amanhã,  dia 12/03/2024, 10º Dia Útil do Mes de março",
                "Para,  dia 13/03/2024, 11º Dia Útil do Mes de março"}},
          Case{"28/03/2024",
               {"Para Depois de Amanhã,  dia 30/03/2024, ÚLTIMO Dia Últil do Mes",
                "Para,  dia 01/04/2024, PRIMEIRO Dia Últil do Mes",
                "Para,  dia 03/04/2024, SEGUNDO Dia Últil do Mes"}},
          Case{"31/03/2024",
               {"Para Amanhã,  dia 01/04/2024, PRIMEIRO Dia Últil do Mes",
                "Para,  dia 03/04/2024, SEGUNDO Dia Últil do Mes",
                "Para,  dia 04/04/2024, TERCEIRO Dia Últil do Mes"}}}) {
        auto lines = businessDayNotices(march, april, *parseDate(c.today));
        lines.erase(lines.begin());
        EXPECT_EQ(lines, c.ahead) << c.today;
    }
}

TEST(BusinessDays, ThePresentMonthIsJudgedByItsRecordElseByTheOffer) {
    testing::TestWorkplace desk;
    const TimecardCalendar calendar(desk.at);
    const Date today = *parseDate("28/03/2024");
    MonthOverview overview = calendar.overview(today);
    EXPECT_FALSE(overview.recorded);
    EXPECT_EQ(overview.businessDays, 25);
    EXPECT_THAT(overview.holidays, ElementsAre(*parseDate("29/03/2024")));
    ASSERT_EQ(overview.notices.size(), 5U);
    EXPECT_EQ(overview.notices[0], "Hoje é o(a) 28 do Mês e, 24º Dia Útil do Mes de março");
    EXPECT_EQ(overview.notices[4], "Feriados ainda não confirmados.");

    saveMonthSettings(desk.store(), monthWith("03-2024", {"04/03/2024"}));
    saveSelectedMonth(desk.store(), {*parseMonthKey("02-2024"), {}});
    overview = calendar.overview(today);
    EXPECT_EQ(overview.month, *parseMonthKey("02-2024"));
    EXPECT_FALSE(overview.recorded);
    ASSERT_EQ(overview.notices.size(), 4U);
    EXPECT_EQ(overview.notices[0], "Hoje é o(a) 28 do Mês e, 23º Dia Útil do Mes de março");
    EXPECT_EQ(overview.notices[1], "Para Amanhã,  dia 29/03/2024, 24º Dia Útil do Mes de março");
}

TEST(BusinessDays, TheMonthConfirmedLastIsOfferedWhileNoneIsChosen) {
    testing::TestWorkplace desk;
    const TimecardCalendar calendar(desk.at);
    const Date today = *parseDate("28/03/2024");
    desk.session.lastMonth = parseMonthKey("02-2024");
    EXPECT_EQ(calendar.overview(today).offered, std::nullopt) << "it has no record";
    EXPECT_FALSE(calendar.confirmOffered());
    saveMonthSettings(desk.store(), monthWith("02-2024", {}));
    EXPECT_EQ(calendar.overview(today).offered, parseMonthKey("02-2024"));
    desk.session.shiftFilter = ShiftFilter::Dois;
    EXPECT_TRUE(calendar.confirmOffered());
    EXPECT_EQ(desk.file("DataIde.ivc"), "02-2024\r\nDois\r\n");
    EXPECT_EQ(calendar.overview(today).offered, std::nullopt);
}

}  // namespace
}  // namespace winvrx
