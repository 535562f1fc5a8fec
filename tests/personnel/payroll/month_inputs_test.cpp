#include "personnel/payroll/month_inputs.h"

#include "tests/support/employees.h"
#include "tests/support/memory_files.h"
#include "timecard/month/holiday_offer.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

const CompanyCode kCompany = *CompanyCode::parse("01");
constexpr WorkMonth kMonth = 2026y / 3;

/// March 2026, 31 days from a Sunday on, for a day of 08:00 to 16:00.
class MonthInputsTest : public ::testing::Test {
  protected:
    MonthInputsTest() {
        ana_.admission = "01/02/2020";
        ana_.salary = "3.000,00";
        ana_.dependants = "2";
        file("01PadrHor001.pdx") = "08:0016:00";
    }

    std::string& file(const std::string& name) { return files_.content["/data/" + name]; }

    /// A day's line, of a full day where `rest` is empty.
    static std::string day(int number, const std::string& rest = "08:0016:00") {
        return dayLabel(firstDay(kMonth).year() / kMonth.month() /
                        std::chrono::day{static_cast<unsigned>(number)})
                   .append(rest) +
               "\r\n";
    }
    [[nodiscard]] EmployeeMonth load() {
        const Store store{files_, folder_};
        return loadEmployeeMonth(store, kCompany, ana_, settings_, namesIn(store));
    }
    [[nodiscard]] std::optional<MonthPayCase> monthOf() {
        return monthCase({tables_, choices_}, load(), 2026y / 3 / 31);
    }

    testing::MemoryFiles files_;
    DataFolder folder_{'C', "/data"};
    Employee ana_ = testing::employee("001", "ANA");
    MonthSettings settings_ = proposedSettings(kMonth, calendarHolidays(kMonth));
    LegalTables tables_;
    PayrollSettings choices_;
};

TEST_F(MonthInputsTest, TakeHoursAbsencesAndDelaysFromTheCard) {
    std::string card = "  \r\n";
    for (int number = 2; number <= 31; ++number)
        if (weekdayOf(firstDay(kMonth).year() / kMonth.month() /
                      std::chrono::day{static_cast<unsigned>(number)}) != std::chrono::Sunday) {
            if (number == 3)
                card += day(number,
                            "                              "
                            "     Falta");
            else if (number == 10)
                card += day(number, "09:3016:00");
            else if (number == 11)
                card += day(number, "08:0417:00");
            else
                card += day(number);
        }
    file("01001-03-2026.bdx") = card;
    const auto month = monthOf();
    ASSERT_TRUE(month);
    EXPECT_EQ(month->salary, Money{300000});
    EXPECT_EQ(month->dependants, 2);
    EXPECT_EQ(month->absentDays, 1);
    EXPECT_EQ(month->restsLost, 1);
    EXPECT_EQ(month->restsLostByDelay, 1);
    EXPECT_EQ(month->missing, 90min);
    EXPECT_GT(month->minimum.byDay, 0s);
    EXPECT_EQ(month->days.businessDays, 26);
    EXPECT_EQ(month->days.restDays, 5);
    EXPECT_TRUE(month->part.isWhole());
}

TEST_F(MonthInputsTest, KnowContractAndLeaves) {
    struct Case {
        const char* type;
        const char* first;
        const char* last;
        int away;
    };
    for (const Case& c : {Case{"006 FÉRIAS", "10/03/2026", "29/03/2026", 20},
                          Case{"003 AUXILIO_DOENÇA", "20/02/2026", "31/03/2026", 25},
                          Case{"003 AUXILIO_DOENÇA", "20/03/2026", "30/04/2026", 0},
                          Case{"001 ACIDENTE_TRABALHO", "10/03/2026", "31/03/2026", 7},
                          Case{"002 LICENÇA_MATERNIDADE", "01/03/2026", "30/06/2026", 0},
                          Case{"004 SERVIÇO_MILITAR", "01/01/2026", "31/12/2026", 31}}) {
        Leave leave;
        leave.type = c.type;
        leave.firstDay = c.first;
        leave.lastDay = c.last;
        leave.duration = "099 Dias e 0 Horas";
        file("01configAf001") = encode(leave) + "\r\n**** \r\n";
        EXPECT_EQ(monthOf().value().part.daysAway, c.away) << c.type << " " << c.first;
    }
    files_.content.erase("/data/01configAf001");
    ana_.admission = "16/03/2026";
    EXPECT_EQ(monthOf().value().part.calendarDays(), 16);
    ana_.admission = "01/04/2026";
    EXPECT_FALSE(monthOf());
    EXPECT_FALSE(load().hours);
    for (const char* salary : {"", "0,00", "R$", "abc"}) {
        ana_.salary = salary;
        EXPECT_FALSE(salaryOf(ana_)) << salary;
    }
}

TEST(HoursRows, HaveLabelsOfTwentyFiveCharacters) {
    HourTotals totals;
    totals[HourCategory::Standard] = 220h;
    totals[HourCategory::NormalNight] = 7h + 30min;
    totals[HourCategory::Missing] = 90min;
    totals[HourCategory::WeeklyRest] = 1466h + 40min;
    const auto rows = hoursRows(totals);
    EXPECT_EQ(rows[0], (HoursRow{" Hora Padrão             ", "220,0"}));
    EXPECT_EQ(rows[1], (HoursRow{" Hora Noturna Normal     ", "007,5"}));
    EXPECT_EQ(rows[2].label, " D.S.R                   ");
    EXPECT_EQ(rows[3], (HoursRow{" Horas Falta             ", "001,5"}));
    EXPECT_EQ(rows[4], (HoursRow{" Hora Normal             ", "218,5"}));
}

}  // namespace
}  // namespace winvrx
