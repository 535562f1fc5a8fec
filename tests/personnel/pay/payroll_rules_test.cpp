// What the worked cases do not reach: memos, settings, weeks, fractions of vacations.
#include "personnel/pay/absences.h"
#include "personnel/pay/hours_pay.h"
#include "personnel/pay/inss.h"
#include "personnel/pay/month_pay.h"
#include "personnel/pay/partial_month.h"
#include "personnel/pay/risk_pay.h"
#include "personnel/pay/thirteenth.h"
#include "personnel/pay/vacation_rules.h"
#include "timecard/month/holiday_offer.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

LegalTables tablesOf2026() {
    LegalTables tables;
    addLegalLines(tables, "inss.txt",
                  "desde; até\n01/2026; 1.621,00; 7,5; 2.902,84; 9; 4.354,27; 12; 8.475,55; 14; A");
    return tables;
}

std::vector<std::string> texts(const Memo& memo) {
    std::vector<std::string> lines;
    for (const MemoLine& line : memo)
        lines.push_back(memoText(line));
    return lines;
}

TEST(Fractions, AreExactAndRoundOnce) {
    EXPECT_EQ(roundedHalfUp({5, 2}), 3);
    EXPECT_EQ(roundedHalfUp({-5, 2}), -3);
    EXPECT_EQ(roundedHalfUp({249, 100}), 2);
    EXPECT_EQ(truncated({299, 100}), 2);
    EXPECT_EQ(Fraction(1, 3) + Fraction(1, 6), Fraction(1, 2));
    EXPECT_EQ(exactText(Fraction(0) - Fraction(133145, 1000000)), "-0,133145");
    EXPECT_EQ(exactText({8, 7}), "8/7");
    EXPECT_EQ(decimalText({30000, 22}, 4), "1.363,6364");
    EXPECT_EQ(parseDecimal("0,133145"), Fraction(133145, 1000000));
    for (const char* text : {"", ",5", "5,", "1.5", "5,0000000001", "7,5%", "--1"})
        EXPECT_EQ(parseDecimal(text), std::nullopt) << text;
    EXPECT_THROW((void)(Fraction(INT64_MAX) * 2), Fault);
    EXPECT_THROW((void)(Fraction(INT64_MAX) + 1), Fault);
}

TEST(Memos, TellTheSumInWordsAndFigures) {
    const LegalTables tables = tablesOf2026();
    PayrollSettings settings;
    const PayrollLaw law{tables, settings};
    const HourBase base{{300000}, 220};
    EXPECT_EQ(texts(overtimePay(law, base, 50, 10h, "Horas extras 50%").memo),
              std::vector<std::string>{"Horas extras 50%: 3.000,00 ÷ 220 × 1,5 × 10:00 = 204,55"});
    EXPECT_EQ(texts(nightPremium(law, base, 7h + 30min).memo),
              std::vector<std::string>{
                  "Adicional noturno: 3.000,00 ÷ 220 × 20% × 7:30 × 60 ÷ 52,5 = 23,38"});
    EXPECT_EQ(texts(restReflex({{20455}, {}, {2338}}, 22, 9).memo),
              std::vector<std::string>{"Reflexo no DSR: (204,55 + 23,38) ÷ 22 × 9 = 93,24"});
    EXPECT_EQ(texts(inss(law, {300000}, 2026y / 3).memo),
              (std::vector<std::string>{"Faixa até 1.621,00: 1.621,00 × 7,5% = 121,575",
                                        "Faixa até 2.902,84: 1.281,84 × 9% = 115,3656",
                                        "Faixa até 4.354,27: 97,16 × 12% = 11,6592",
                                        "INSS: 121,57 + 115,36 + 11,65 = 248,58"}));
    settings.inssRounding = InssRounding::RoundedOnce;
    EXPECT_EQ(texts(inss(law, {300000}, 2026y / 3).memo).back(),
              "INSS: 121,575 + 115,3656 + 11,6592 = 248,60");
    settings.hourIsRounded = true;
    EXPECT_EQ(texts(overtimePay(law, base, 50, 10h, "HE").memo).front(),
              "HE: 3.000,00 ÷ 220 = 13,64 × 1,5 × 10:00 = 204,60");
}

TEST(Settings, AreEachReadBackAndExplained) {
    for (const PayrollSetting& setting : payrollSettings()) {
        EXPECT_FALSE(setting.effect.empty()) << setting.key;
        for (std::size_t choice = 0; choice < setting.choices.size(); ++choice) {
            PayrollSettings written;
            setting.choose(written, choice);
            PayrollSettings read;
            EXPECT_TRUE(takeSettingLine(read, settingLine(setting, written)));
            EXPECT_EQ(read, written) << setting.key << " " << choice;
        }
    }
    PayrollSettings settings;
    for (const char* line : {"", "inss", "inss = 2", "inss = x", "outra = 1"}) {
        EXPECT_FALSE(takeSettingLine(settings, line)) << line;
        EXPECT_EQ(settings, PayrollSettings{}) << line;
    }
    EXPECT_TRUE(takeSettingLine(settings, "irrf-quando = 1"));  // an earlier version's
    EXPECT_EQ(settings, PayrollSettings{});
}

TEST(WeeklyRest, IsLostOnceAWeekWithItsHolidays) {
    const auto april = proposedSettings(2026y / 4, calendarHolidays(2026y / 4));
    struct Case {
        std::vector<Date> absences;
        int lost;
    };
    // Holidays: Friday 3 and Tuesday 21 April 2026.
    for (const Case& c :
         {Case{{}, 0}, Case{{2026y / 4 / 7}, 1}, Case{{2026y / 4 / 7, 2026y / 4 / 9}, 1},
          Case{{2026y / 4 / 11, 2026y / 4 / 13}, 2}, Case{{2026y / 4 / 1}, 2},
          Case{{2026y / 4 / 22, 2026y / 4 / 30}, 3}})
        EXPECT_EQ(restDaysLost(c.absences, april), c.lost) << c.absences.size();
}

TEST(PartialMonths, KnowDaysAway) {
    using enum PartialMonth;
    struct Case {
        MonthPart part;
        PartialMonth method;
        std::int64_t cents;
    };
    for (const Case& c : {
             Case{{2026y / 3 / 1, 2026y / 3 / 31, 20}, CalendarDays, 110000},
             Case{{2026y / 3 / 1, 2026y / 3 / 31, 20}, CommercialDays, 100000},
             Case{{2026y / 3 / 1, 2026y / 3 / 31, 30}, CommercialDays, 10000},
             Case{{2026y / 2 / 1, 2026y / 2 / 28, 28}, CommercialDays, 0},
             Case{{2026y / 2 / 1, 2026y / 2 / 28, 8}, MonthLength, 214286},
             Case{{2026y / 4 / 16, 2026y / 4 / 30}, MonthLength, 150000},
             Case{{2026y / 3 / 10, 2026y / 3 / 19}, CommercialDays, 100000},
         })
        EXPECT_EQ(partialSalary({300000}, c.part, c.method).amount.cents, c.cents)
            << dateText(c.part.first) << " " << static_cast<int>(c.method);
    EXPECT_FALSE(employedPart(2026y / 3, 2026y / 4 / 1, std::nullopt));
    EXPECT_FALSE(employedPart(2026y / 3, 2020y / 1 / 1, 2026y / 2 / 28));
}

TEST(Thirteenth, LeavesOutMonthsOfAbsences) {
    std::vector<Date> absences;
    for (int day = 0; day < 16; ++day)
        absences.push_back(plusDays(2026y / 4 / 1, day));
    EXPECT_EQ(thirteenthTwelfths(2026y, 2020y / 1 / 1, 2026y / 12 / 31, absences), 11);
    absences.pop_back();
    EXPECT_EQ(thirteenthTwelfths(2026y, 2020y / 1 / 1, 2026y / 12 / 31, absences), 12);
    EXPECT_EQ(thirteenthTwelfths(2026y, 2027y / 1 / 1, 2027y / 12 / 31), 0);
}

TEST(RiskPay, IsTheBetterOne) {
    const auto pay = betterRiskPay(unhealthyPay(40, {162100}), dangerPay({200000}));
    EXPECT_EQ(pay.unhealthy.amount, Money{64840});
    EXPECT_EQ(pay.danger.amount, Money{});
    EXPECT_EQ(betterRiskPay(unhealthyPay(40, {162100}), dangerPay({300000})).total(), Money{90000});
}

TEST(VacationRules, KnowTwelfthsFractionsAndDates) {
    struct Twelfths {
        Date first;
        Date last;
        int count;
    };
    for (const Twelfths& c :
         {Twelfths{2026y / 1 / 10, 2026y / 1 / 23, 0}, Twelfths{2026y / 1 / 10, 2026y / 1 / 24, 1},
          Twelfths{2026y / 1 / 10, 2026y / 2 / 9, 1}, Twelfths{2026y / 1 / 31, 2026y / 2 / 28, 1},
          Twelfths{2025y / 7 / 20, 2026y / 8 / 5, 13}})
        EXPECT_EQ(vacationTwelfths(c.first, c.last), c.count) << dateText(c.last);

    EXPECT_EQ(fractionsProblem(30, {30}), std::nullopt);
    EXPECT_EQ(fractionsProblem(30, {20}, 10), std::nullopt);
    EXPECT_EQ(fractionsProblem(30, {14, 11, 5}), std::nullopt);
    EXPECT_EQ(fractionsProblem(24, {16}, 8), std::nullopt);
    struct Refused {
        int granted;
        std::vector<int> fractions;
        int sold;
    };
    for (const Refused& c :
         {Refused{30, {19}, 11}, Refused{30, {20, 5}, 0}, Refused{30, {14, 6, 5, 5}, 0},
          Refused{30, {10, 10, 10}, 0}, Refused{30, {26, 4}, 0}})
        EXPECT_TRUE(fractionsProblem(c.granted, c.fractions, c.sold)) << c.fractions.size();

    const auto periods = acquisitionPeriods({2024y / 3 / 10}, 2026y / 3 / 9);
    ASSERT_EQ(periods.size(), 2U);
    EXPECT_EQ(periods[1].last, Date(2026y / 3 / 9));
    EXPECT_EQ(acquisitionPeriods({2024y / 3 / 10}, 2026y / 3 / 10).size(), 3U);
    EXPECT_TRUE(acquisitionPeriods({2024y / 3 / 10}, 2024y / 3 / 9).empty());
    EXPECT_EQ(daysPastLimit(periods[0], periods[0].lastStart(30), 30), 0);
    EXPECT_EQ(daysPastLimit(periods[0], plusDays(periods[0].lastStart(30), 1), 30), 1);
    EXPECT_EQ(daysPastLimit(periods[0], 2026y / 5 / 1, 30), 30);
    EXPECT_EQ(vacationNoticeDue(2026y / 3 / 31), Date(2026y / 3 / 1));
    EXPECT_EQ(vacationPaymentDue(2026y / 3 / 2), Date(2026y / 2 / 28));
    EXPECT_EQ(saleRequestDue(periods[0]), Date(2025y / 2 / 22));
}

TEST(VacationRules, LoseAPeriodByTimeAway) {
    using enum TimeAway::Kind;
    const auto away = [](TimeAway::Kind kind, Date first, Date last) {
        return TimeAway{kind, {first, last}};
    };
    struct Case {
        std::vector<TimeAway> away;
        std::vector<Date> recorded;
        Date date;
        const char* periods;  ///< the day on which each ends, "!" behind one that is forfeit
    };
    // The social security pays from 16/06 on: six months end on 15/12.
    const TimeAway sixMonths = away(Illness, 2024y / 6 / 1, 2024y / 12 / 15);
    const TimeAway more = away(Illness, 2024y / 6 / 1, 2024y / 12 / 16);
    const Date later = 2025y / 3 / 10;
    const char* const kept = "09/03/2025 09/03/2026 ";
    const char* const lost = "16/12/2024! 16/12/2025 ";
    for (const Case& c :
         {Case{{sixMonths}, {}, later, kept}, Case{{more}, {}, later, lost},
          Case{{more}, {}, 2024y / 12 / 15, "09/03/2025 "},
          Case{{more}, {}, 2024y / 12 / 16, "16/12/2024! "},
          Case{{away(Other, 2024y / 6 / 1, 2024y / 12 / 31)}, {}, later, kept},
          // In two parts, each with its fifteen days; then a leave that delays the return.
          Case{{away(Illness, 2024y / 4 / 1, 2024y / 8 / 15),
                away(Illness, 2024y / 10 / 1, 2024y / 12 / 16),
                away(Other, 2024y / 12 / 17, 2024y / 12 / 31)},
               {},
               later,
               "31/12/2024! 31/12/2025 "},
          // More than six months, but in two periods.
          Case{{away(Illness, 2024y / 12 / 1, 2025y / 7 / 31)}, {}, 2025y / 7 / 31, kept},
          Case{{away(PaidLeave, 2024y / 6 / 1, 2024y / 6 / 30),
                away(PaidLeave, 2024y / 8 / 1, 2024y / 8 / 30)},
               {},
               later,
               kept},
          Case{{away(PaidLeave, 2024y / 6 / 1, 2024y / 7 / 1)},
               {},
               later,
               "01/07/2024! 01/07/2025 "},
          // What is recorded of the period, or of a later one counted without the loss, stands.
          Case{{more}, {2024y / 3 / 10}, later, kept}, Case{{more}, {2026y / 3 / 10}, later, kept},
          Case{{more}, {2024y / 12 / 17}, later, lost}}) {
        std::string ends;
        const AcquisitionCount count{2024y / 3 / 10, c.away, c.recorded};
        for (const AcquisitionPeriod& period : acquisitionPeriods(count, c.date)) {
            ends += dateText(period.last) + (period.forfeit ? "! " : " ");
            EXPECT_EQ(forfeitText(period).empty(), !period.forfeit);
        }
        EXPECT_EQ(ends, c.periods) << dateText(c.date);
        EXPECT_EQ(runningPeriod(count, c.date).has_value(), !ends.ends_with("! "));
    }
}

}  // namespace
}  // namespace winvrx
