#include "output/stocks/card_rows.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

#include <set>

namespace winvrx {
namespace {

using testing::TestWorkplace;

constexpr WorkMonth kMarch = std::chrono::year(2024) / 3;
constexpr WorkMonth kFebruary = std::chrono::year(2024) / 2;

TimePair pairOf(std::string_view entry, std::string_view exit) {
    return {parseTime(entry), parseTime(exit)};
}

/// A card of eight hours from Monday to Friday, nothing on the other days.
CardData commercialCard(WorkMonth month) {
    CardData card;
    card.company.name = "EMPRESA MODELO LTDA";
    card.company.taxId = "12.345.678/0001-90";
    card.employee.code = "001";
    card.employee.name = "JOSÉ DA SILVA";
    card.employee.function = "BALCONISTA";
    card.employee.registration = "17";
    card.employee.workBooklet = "12345/00010-ES";
    card.employee.admission = "12/03/2020";
    card.settings.month = month;
    card.schedule.emplace();
    card.schedule->weekday = {pairOf("08:00", "12:00"), pairOf("13:00", "17:00")};
    card.punches.emplace();
    for (int day = 0; day < daysIn(month); ++day) {
        const Date date = plusDays(firstDay(month), day);
        PunchLine& line = card.punches->emplace_back();
        line.label = dayLabel(date);
        const unsigned weekday = weekdayOf(date).c_encoding();
        if (weekday == 0 || weekday == 6) continue;
        line.morningEntry = "08:00";
        line.morningExit = "12:00";
        line.afternoonEntry = "13:00";
        line.afternoonExit = "17:00";
    }
    return card;
}

PunchLine withoutTimes(const char* label, const char* situation = "") {
    PunchLine line;
    line.label = label;
    line.situation = situation;
    return line;
}

/// The named columns of the row of `day`, parted by "|".
std::string row(const ReportRows& rows, int day) {
    const ReportRow& one = rows.at(static_cast<std::size_t>(day - 1));
    std::string text = one[cardColumn("linha")];
    for (const std::size_t column :
         {cardColumn("dia"), cardColumn("semana"), cardColumn("ent1"), cardColumn("sai1"),
          cardColumn("ent2"), cardColumn("sai2"), cardColumn("ent3"), cardColumn("sai3"),
          cardColumn("horas"), cardColumn("situacao")})
        text += "|" + one[column];
    return text;
}

TEST(CardRows, DaysCarryTimesHoursAndSituation) {
    CardData card = commercialCard(kMarch);
    card.settings.setHoliday(*parseDate("29/03/2024"), true);
    card.punches->at(28) = withoutTimes("29/sex/mar");
    card.punches->at(3) = withoutTimes("04/seg/mar", "Falta Inj.");
    card.punches->at(4).extraEntry = "18:00";
    card.punches->at(4).extraExit = "19:30";
    card.punches->at(5).situation = "ATESTADO";
    card.punches->at(11).situation = "Falta";
    card.punches->at(6).afternoonExit = "";
    card.punches->at(7).afternoonExit = "99:99";
    const auto rows = cardRows(card);
    ASSERT_EQ(rows.size(), 31U);
    struct Case {
        int day;
        const char* text;
    };
    for (const Case& one : {
             Case{1, "1|01|sex|08:00|12:00|13:00|17:00|||08:00|"},
             Case{2, "2|02|sáb||||||||"},
             Case{3, "3|03|dom||||||||DESCANSO SEMANAL"},
             Case{4, "4|04|seg||||||||Falta Inj."},
             Case{5, "5|05|ter|08:00|12:00|13:00|17:00|18:00|19:30|09:30|"},
             Case{6, "6|06|qua|08:00|12:00|13:00|17:00|||08:00|"},
             Case{12, "12|12|ter|08:00|12:00|13:00|17:00||||"},
             Case{7, "7|07|qui|08:00|12:00|13:00||||04:00|"},
             Case{8, "8|08|sex|08:00|12:00|13:00|99:99|||04:00|"},
             Case{29, "29|29|sex||||||||FERIADO"},
             Case{31, "31|31|dom||||||||DESCANSO SEMANAL"},
         })
        EXPECT_EQ(row(rows, one.day), one.text);
}

TEST(CardRows, ADayWithoutTimesSaysWhy) {
    struct Case {
        const char* situation;
        const char* time;
        const char* printed;
    };
    for (const Case& one : {
             Case{"AFASTAMENTO", "", "AFASTAMENTO"},
             Case{"FERIADO", "", "FERIADO"},
             Case{"DESCANSO SEMANAL", "", "DESCANSO SEMANAL"},
             Case{"Falta", "", "Falta"},
             Case{"Falta Injustificada", "", "Falta Inj."},
             Case{"Falta Injustifi", "", "Falta Inj."},
             Case{"Falta Inj.", "", "Falta Inj."},
             Case{"Férias", "", "Férias"},
             Case{" treinamento ", "", "treinamento"},
             Case{"", "", ""},
             Case{"FERIADO", "08:00", ""},
             Case{"Falta Injustificada", "08:00", ""},
         }) {
        CardData card = commercialCard(kMarch);
        card.punches->at(3) = withoutTimes("04/seg/mar", one.situation);
        card.punches->at(3).extraExit = one.time;
        const ReportRow printed = cardRows(card).at(3);
        EXPECT_EQ(printed[cardColumn("situacao")], one.printed) << one.situation;
        EXPECT_EQ(printed[cardColumn("sai3")], one.time) << one.situation;
    }
}

TEST(CardRows, SumsStandOnEveryRow) {
    CardData card = commercialCard(kMarch);
    struct Case {
        TotalsFormat format;
        const char* firstHalf;
        const char* secondHalf;
        const char* total;
    };
    // 11 working days up to the 15th, 10 after it.
    for (const Case& one : {Case{TotalsFormat::HoursAndMinutes, "88:00", "80:00", "168:00"},
                            Case{TotalsFormat::DecimalHours, "88,00", "80,00", "168,00"}}) {
        card.settings.overtime.totalsFormat = one.format;
        const auto rows = cardRows(card);
        for (std::size_t at = 0; at < rows.size(); ++at) {
            EXPECT_EQ(rows[at][cardColumn("total")], one.total);
            EXPECT_EQ(rows[at][cardColumn("quinzena")], at < 15 ? one.firstHalf : one.secondHalf);
        }
    }
}

TEST(CardRows, RestIsOnTheEmployeesOwnDayToo) {
    CardData card = commercialCard(kMarch);
    card.employee.restDay = "qua";
    card.punches->at(5) = withoutTimes("06/qua/mar");
    card.punches->at(6) = withoutTimes("07/qui/mar");
    const auto rows = cardRows(card);
    EXPECT_EQ(row(rows, 3), "3|03|dom||||||||DESCANSO SEMANAL");
    EXPECT_EQ(row(rows, 6), "6|06|qua||||||||DESCANSO SEMANAL");
    EXPECT_EQ(row(rows, 7), "7|07|qui||||||||");
    EXPECT_EQ(row(rows, 13), "13|13|qua|08:00|12:00|13:00|17:00|||08:00|");
}

TEST(CardRows, ShortMonthLeavesTheLastRowsBlank) {
    const auto rows = cardRows(commercialCard(kFebruary));
    ASSERT_EQ(rows.size(), 31U);
    EXPECT_EQ(row(rows, 29), "29|29|qui|08:00|12:00|13:00|17:00|||08:00|");
    EXPECT_EQ(row(rows, 30), "30||||||||||");
    EXPECT_EQ(row(rows, 31), "31||||||||||");
    EXPECT_EQ(rows[30][cardColumn("nome")], "JOSÉ DA SILVA");
}

TEST(CardRows, DaysOutsideTheContractAreLabelsOnlyAndNotCounted) {
    CardData card = commercialCard(kMarch);
    card.punches->at(26).situation = kSituationLeave;
    card.punches->at(26).clearTimes();
    card.leaves = {leaveStatusLine(parseDate("28/03/2024")), parseDate("25/03/2024")};
    const auto rows = cardRows(card);
    EXPECT_EQ(row(rows, 22), "22|22|sex||||||||");
    EXPECT_EQ(row(rows, 24), "24|24|dom||||||||");
    EXPECT_EQ(row(rows, 27), "27|27|qua||||||||AFASTAMENTO");
    EXPECT_EQ(row(rows, 28), "28|28|qui|08:00|12:00|13:00|17:00|||08:00|");
    EXPECT_EQ(row(rows, 29), "29|29|sex||||||||");
    EXPECT_EQ(row(rows, 31), "31|31|dom||||||||");
    EXPECT_EQ(rows[0][cardColumn("total")], "24:00");
    EXPECT_EQ(rows[0][cardColumn("quinzena")], "00:00");
}

TEST(CardRows, WithoutPunchesThereAreLabelsOnly) {
    CardData card = commercialCard(kMarch);
    card.punches.reset();
    card.schedule.reset();
    card.settings.setHoliday(*parseDate("29/03/2024"), true);
    const auto rows = cardRows(card);
    EXPECT_EQ(row(rows, 1), "1|01|sex||||||||");
    EXPECT_EQ(row(rows, 29), "29|29|sex||||||||");
    EXPECT_EQ(rows[0][cardColumn("razao")], "EMPRESA MODELO LTDA");
    for (const std::size_t column : {cardColumn("horario"), cardColumn("refeicao"),
                                     cardColumn("total"), cardColumn("quinzena")})
        EXPECT_EQ(rows[0][column], "");
}

TEST(CardRows, HeaderValues) {
    CardData card = commercialCard(kMarch);
    card.employee.name = "MARIA APARECIDA DA CONCEIÇÃO E";
    const auto rows = cardRows(card);
    struct Case {
        std::size_t column;
        const char* value;
    };
    for (const Case& one :
         {Case{cardColumn("razao"), "EMPRESA MODELO LTDA"},
          Case{cardColumn("cnpj"), "12.345.678/0001-90"}, Case{cardColumn("registro"), "17"},
          Case{cardColumn("ctps"), "12345/00010-ES"}, Case{cardColumn("admissao"), "12/03/2020"},
          Case{cardColumn("funcao"), "BALCONISTA"},
          Case{cardColumn("periodo"), "01/03/2024 a 31/03/2024"},
          Case{cardColumn("descanso"), "domingo"},
          Case{cardColumn("horario"), "Ent:08:00 Saí:12:00 Ent:13:00 Saí:17:00"},
          Case{cardColumn("refeicao"), "12:00 às 13:00"},
          Case{cardColumn("nome"), "MARIA APARECIDA DA CONCEIÇÃO E"},
          Case{cardColumn("codigo"), "001"}, Case{cardColumn("mes"), "março/2024"}})
        for (const ReportRow& each : rows)
            EXPECT_EQ(each[one.column], one.value);
}

TEST(CardHeader, TextIsInOrderWithItsCaptions) {
    EXPECT_EQ(headerText(commercialCard(kMarch)),
              "Razão: EMPRESA MODELO LTDA\n"
              "Cnpj: 12.345.678/0001-90 - Reg.: 17 CTPS: 12345/00010-ES\n"
              "Admiss: 12/03/2020\n"
              "Função: BALCONISTA\n"
              "Período.: 01/03/2024 a 31/03/2024 - Descanso Semanal: domingo\n"
              "Ent:08:00 Saí:12:00 Ent:13:00 Saí:17:00 - Inter.Refei.: 12:00 às 13:00");
}

}  // namespace
}  // namespace winvrx
