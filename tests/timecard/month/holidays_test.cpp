#include "timecard/month/holidays.h"

#include "tests/support/test_workplace.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/month/local_holidays.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestWorkplace;
using namespace std::chrono_literals;

std::vector<std::string> textsOf(const std::vector<Holiday>& holidays) {
    std::vector<std::string> texts;
    for (const Holiday& one : holidays)
        texts.push_back(dateText(one.date).substr(0, 5) + (isOfferedTicked(one) ? "+" : "-") +
                        one.name);
    return texts;
}

TEST(Holidays, EasterOfKnownYears) {
    // The earliest and the latest possible day, and the years in which the bare cycle is a week
    // late, are among them.
    for (const char* easter :
         {"23/03/1913", "25/04/1943", "18/04/1954", "19/04/1981", "23/04/2000", "23/03/2008",
          "24/04/2011", "20/04/2014", "12/04/2020", "31/03/2024", "20/04/2025", "05/04/2026",
          "28/03/2027", "25/04/2038", "18/04/2049", "19/04/2076", "22/03/2285"}) {
        const Date date = *parseDate(easter);
        EXPECT_EQ(dateText(easterSunday(date.year())), easter);
    }
}

TEST(Holidays, TheCalendarOfAYear) {
    struct Case {
        const char* month;
        std::vector<std::string> holidays;
    };
    for (const Case& c :
         {Case{"01-2024", {"01/01+Confraternização Universal"}},
          Case{"02-2024", {"12/02-Carnaval", "13/02-Carnaval"}},
          Case{"03-2024", {"29/03+Sexta-feira Santa"}}, Case{"04-2024", {"21/04+Tiradentes"}},
          Case{"05-2024", {"01/05+Dia do Trabalho", "30/05-Corpus Christi"}}, Case{"06-2024", {}},
          Case{"07-2024", {}}, Case{"08-2024", {}},
          Case{"09-2024", {"07/09+Independência do Brasil"}},
          Case{"10-2024", {"12/10+Nossa Senhora Aparecida"}},
          Case{"11-2024",
               {"02/11+Finados", "15/11+Proclamação da República", "20/11+Consciência Negra"}},
          Case{"11-2023", {"02/11+Finados", "15/11+Proclamação da República"}},
          Case{"12-2024", {"25/12+Natal"}},
          // Carnival on both sides of a month's end, Good Friday beside another holiday.
          Case{"03-2025", {"03/03-Carnaval", "04/03-Carnaval"}},
          Case{"02-2028", {"28/02-Carnaval", "29/02-Carnaval"}},
          Case{"06-2025", {"19/06-Corpus Christi"}},
          Case{"04-2000", {"21/04+Tiradentes", "21/04+Sexta-feira Santa"}}})
        EXPECT_EQ(textsOf(calendarHolidays(*parseMonthKey(c.month))), c.holidays) << c.month;
}

TEST(Holidays, DaysAreReadAndCompletedAsTheyAreTyped) {
    struct Case {
        const char* typed;
        const char* completed;
        bool isDay;
    };
    for (const Case& c :
         {Case{"2501", "25/01", true}, Case{"25/1", "25/01", true}, Case{" 25-01 ", "25/01", true},
          Case{"25012026", "25/01/2026", true}, Case{"25/1/2026", "25/01/2026", true},
          Case{"29/02", "29/02", true}, Case{"29/02/2023", "29/02/2023", false},
          Case{"30/02", "30/02", false}, Case{"25/13", "25/13", false}, Case{"25", "25", false},
          Case{"250", "250", false}, Case{"", "", false}, Case{"natal", "natal", false},
          Case{"25/01/26", "25/01/26", false}}) {
        EXPECT_EQ(completedHolidayDay(c.typed), c.completed);
        EXPECT_EQ(parseHolidayDay(c.completed).has_value(), c.isDay) << c.typed;
    }
    EXPECT_FALSE(parseHolidayDay("2501"));
}

TEST(Holidays, ALocalDayFallsInItsMonthAndYear) {
    const auto in = [](const char* day, const char* month) {
        const auto date = dateIn(*parseMonthKey(month), *parseHolidayDay(day));
        return date ? dateText(*date) : std::string();
    };
    EXPECT_EQ(in("25/01", "01-2026"), "25/01/2026");
    EXPECT_EQ(in("25/01", "02-2026"), "");
    EXPECT_EQ(in("25/01/2026", "01-2026"), "25/01/2026");
    EXPECT_EQ(in("25/01/2026", "01-2027"), "");
    EXPECT_EQ(in("29/02", "02-2024"), "29/02/2024");
    EXPECT_EQ(in("29/02", "02-2026"), "");
    EXPECT_EQ(in("29/02", "03-2026"), "");
}

TEST(Holidays, LinesOfTheListKeepTheirBytes) {
    const LocalHoliday anniversary{"05/12", "ANIVERSÁRIO DE TAUBATÉ"};
    const std::string line = encode(anniversary);
    EXPECT_EQ(line, "05/12      ANIVERS\xC1RIO DE TAUBAT\xC9                  ");
    EXPECT_EQ(decode<LocalHoliday>(line), anniversary);
    for (const char* kept :
         {"05/12      X", "05/12/2024 X                    tudo o mais fica", " 05/12", "05/12"}) {
        const auto read = lineFrom<LocalHoliday>(kept);
        ASSERT_TRUE(read.key()) << kept;
        EXPECT_EQ(encode(read.record, kept).substr(0, std::string(kept).size()), kept);
    }
    for (const char* junk : {"", "31/02 X", "5/12 X", "ANIVERSARIO", "05/12/24"})
        EXPECT_FALSE(lineFrom<LocalHoliday>(junk).key()) << junk;
}

TEST(Holidays, TheUsersOwnDaysAreOfferedAmongTheOthers) {
    TestWorkplace desk;
    desk.file("Feriados") =
        "30/02      NUNCA\r\n20/11/2023 MUNICIPAL\r\n03/11      PADROEIRA\r\n"
        "15/11      BANDEIRA\r\n03/11/2024 S\xD3 EM 2024\r\n";
    const auto offer = offeredHolidays(desk.store(), 2024y / 11);
    EXPECT_THAT(textsOf(offer), ElementsAre("02/11+Finados", "03/11+PADROEIRA", "03/11+SÓ EM 2024",
                                            "15/11+Proclamação da República", "15/11+BANDEIRA",
                                            "20/11+Consciência Negra"));
    EXPECT_EQ(holidayNames(offer, *parseDate("15/11/2024")), "Proclamação da República, BANDEIRA");
    EXPECT_EQ(holidayNames(offer, *parseDate("16/11/2024")), "");
    EXPECT_THAT(proposedSettings(2024y / 11, offer).holidays(),
                ElementsAre(*parseDate("02/11/2024"), *parseDate("03/11/2024"),
                            *parseDate("15/11/2024"), *parseDate("20/11/2024")));
    EXPECT_THAT(proposedSettings(2024y / 2, calendarHolidays(2024y / 2)).holidays(), IsEmpty());
}

}  // namespace
}  // namespace winvrx
