#include "timecard/business_days.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
          Case{monthWith("02-2026", {}), 24, 4}}) {
        const MonthDayCounts counts = countDays(c.settings);
        EXPECT_EQ(counts.businessDays, c.businessDays) << monthKey(c.settings.month);
        EXPECT_EQ(counts.restDays, c.restDays) << monthKey(c.settings.month);
    }
}

TEST(BusinessDays, TodayIsNamedByItsOrdinalOrNumber) {
    const MonthSettings march = monthWith("03-2024", {"29/03/2024"});
    struct Case {
        const char* today;
        const char* line;
    };
    for (const Case& c :
         {Case{"01/03/2024", "Hoje é o PRIMEIRO Dia Últil do Mes"},
          Case{"02/03/2024", "Hoje é o SEGUNDO Dia Últil do Mes"},
          Case{"04/03/2024", "Hoje é o TERCEIRO Dia Últil do Mes"},
          Case{"05/03/2024", "Hoje é o QUARTO Dia Últil do Mes"},
          Case{"06/03/2024", "Hoje é o QUINTO Dia Últil do Mes"},
          Case{"07/03/2024", "Hoje é o(a) 7 do Mês e, 6º Dia Útil do Mes de março"},
          Case{"28/03/2024", "Hoje é o(a) 28 do Mês e, 24º Dia Útil do Mes de março"},
          Case{"30/03/2024", "Hoje é o ÚLTIMO Dia Últil do Mes"},
          Case{"29/03/2024", "Hoje,  dia 29/03/2024, não é Dia Útil do Mes"},
          Case{"31/03/2024", "Hoje,  dia 31/03/2024, não é Dia Útil do Mes"}})
        EXPECT_EQ(businessDayNotices(march, *parseDate(c.today)).front(), c.line);
}

TEST(BusinessDays, LooksAheadOverRestDaysAndStopsAtTheMonthsEnd) {
    const MonthSettings march = monthWith("03-2024", {"29/03/2024"});
    EXPECT_THAT(businessDayNotices(march, *parseDate("01/03/2024")),
                ElementsAre("Hoje é o PRIMEIRO Dia Últil do Mes",
                            "Para Amanhã,  dia 02/03/2024, SEGUNDO Dia Últil do Mes",
                            "Para,  dia 04/03/2024, TERCEIRO Dia Últil do Mes",
                            "Para,  dia 05/03/2024, QUARTO Dia Últil do Mes"));
    EXPECT_THAT(businessDayNotices(march, *parseDate("10/03/2024")),
                ElementsAre("Hoje,  dia 10/03/2024, não é Dia Útil do Mes",
                            "Para Amanhã,  dia 11/03/2024, 9º Dia Útil do Mes de março",
                            "Para Depois de Amanhã,  dia 12/03/2024, 10º Dia Útil do Mes de março",
                            "Para,  dia 13/03/2024, 11º Dia Útil do Mes de março"));
    EXPECT_THAT(businessDayNotices(march, *parseDate("28/03/2024")),
                ElementsAre("Hoje é o(a) 28 do Mês e, 24º Dia Útil do Mes de março",
                            "Para Depois de Amanhã,  dia 30/03/2024, ÚLTIMO Dia Últil do Mes"));
    EXPECT_THAT(businessDayNotices(march, *parseDate("31/03/2024")), ElementsAre(::testing::_));
    EXPECT_THAT(businessDayNotices(march, *parseDate("01/04/2024")), IsEmpty());
}

}  // namespace
}  // namespace winvrx
