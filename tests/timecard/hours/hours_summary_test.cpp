#include "timecard/hours/hours_summary.h"

#include <gmock/gmock.h>

namespace winvrx {

void PrintTo(const ExplainedPart& part, std::ostream* out) {
    *out << part.day << " " << part.span << " " << part.length << " " << part.rule;
}

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr WorkMonth kMonth = 2024y / 3;

WorkTerms eightHours() {
    WorkTerms terms;
    terms.weekday = {{parseTime("08:00"), parseTime("12:00")},
                     {parseTime("13:00"), parseTime("17:00")}};
    terms.saturdayIsNormal = true;
    return terms;
}

/// A month of which only some days say anything; the others are excused.
std::vector<PunchLine> excusedMonth() {
    auto lines = blankMonth(kMonth);
    for (PunchLine& line : lines)
        line.situation = "Abonado";
    return lines;
}

void put(PunchLine& line, const char* morning, const char* afternoonExit, const char* situation) {
    line.morningEntry = morning;
    line.morningExit = "12:00";
    line.afternoonEntry = "13:00";
    line.afternoonExit = afternoonExit;
    line.situation = situation;
}

TEST(HoursSummary, NamesItsFiguresWithThePercentagesThatHold) {
    OvertimeRules rules;
    std::vector<std::string> captions;
    for (const HourCategory category : kHourCategories)
        captions.push_back(captionOf(category, rules));
    EXPECT_THAT(captions, ElementsAre("Hora Padrão", "Hora Normal", "Hora Noturna Norm",
                                      "Hora Extra 50%", "Hora Extra 100%", "Hor Notur Extr 50%",
                                      "Hor Notur Extr 100%", "Hora Falta", "Hora D.S.R."));
    rules.minimumPercent = 60;
    rules.nightMaximumPercent = 120;
    EXPECT_EQ(captionOf(HourCategory::ExtraMinimum, rules), "Hora Extra 60%");
    EXPECT_EQ(captionOf(HourCategory::NightExtraMaximum, rules), "Hor Notur Extr 120%");
}

TEST(HoursSummary, SumsTheHalvesAndTheMonth) {
    auto lines = excusedMonth();
    put(lines[4], "08:00", "18:00", "");
    put(lines[18], "08:30", "17:00", "");
    WorkTerms terms = eightHours();
    terms.overtime.totalsFormat = TotalsFormat::DecimalHours;
    const HoursSummary summary(lines, kMonth, terms);
    const auto figures = [&](HourCategory category) {
        return std::vector{summary.figure(category, HalfMonth::First),
                           summary.figure(category, HalfMonth::Second),
                           summary.figure(category, std::nullopt)};
    };
    EXPECT_THAT(figures(HourCategory::NormalDay), ElementsAre("8,00", "7,50", "15,50"));
    EXPECT_THAT(figures(HourCategory::ExtraMinimum), ElementsAre("1,00", "0,00", "1,00"));
    EXPECT_THAT(figures(HourCategory::Missing), ElementsAre("0,00", "0,50", "0,50"));
    EXPECT_THAT(figures(HourCategory::WeeklyRest), ElementsAre("16,00", "24,00", "40,00"));
    EXPECT_EQ(HoursSummary().figure(HourCategory::Standard, std::nullopt), "00:00");
}

TEST(HoursSummary, ExplainsAFigureByItsDaysMinutesAndRules) {
    auto lines = excusedMonth();
    put(lines[4], "08:04", "17:00", "");
    put(lines[5], "08:00", "23:30", "");
    put(lines[6], "08:00", "16:00", "");
    put(lines[9], "08:00", "12:00", "");
    lines[9].afternoonEntry.clear();
    lines[9].afternoonExit.clear();
    put(lines[10], "08:00", "17:00", "Falta");
    WorkTerms terms = eightHours();
    terms.overtime.differentiatedPercent = true;
    terms.overtime.nightMinimumPercent = 70;
    const HoursSummary summary(lines, kMonth, terms);
    const auto explained = [&](HourCategory category) {
        return summary.explanation(category, HalfMonth::First);
    };
    const std::string tolerance = "tolerância: até 5 min por marcação e 10 min no dia";
    const std::string within = "dentro da jornada";
    using Part = ExplainedPart;
    EXPECT_THAT(explained(HourCategory::NormalDay),
                ElementsAre(Part{"05/ter/mar", "08:04–12:00", "03:56", tolerance},
                            Part{"05/ter/mar", "13:00–17:00", "04:00", tolerance},
                            Part{"06/qua/mar", "08:00–12:00", "04:00", within},
                            Part{"06/qua/mar", "13:00–17:00", "04:00", within},
                            Part{"07/qui/mar", "08:00–12:00", "04:00", within},
                            Part{"07/qui/mar", "13:00–16:00", "03:00", within}));
    EXPECT_THAT(explained(HourCategory::ExtraMinimum),
                ElementsAre(Part{"06/qua/mar", "17:00–19:00", "02:00", "até 2 hs: 50%"}));
    EXPECT_THAT(explained(HourCategory::ExtraMaximum),
                ElementsAre(Part{"06/qua/mar", "19:00–22:00", "03:00", "acima de 2 hs: 100%"},
                            Part{"10/dom/mar", "08:00–12:00", "04:00",
                                 "domingo, feriado ou descanso: 100%"}));
    EXPECT_THAT(explained(HourCategory::NightExtraMinimum),
                ElementsAre(Part{"06/qua/mar", "22:00–23:30", "01:30", "noturno, até 2 hs: 70%"}));
    EXPECT_THAT(
        explained(HourCategory::Missing),
        ElementsAre(Part{"07/qui/mar", "", "01:00", "abaixo da jornada, além da tolerância"},
                    Part{"11/seg/mar", "", "08:00", "dia marcado como falta: jornada inteira"}));
    EXPECT_THAT(summary.explanation(HourCategory::Missing, HalfMonth::Second), IsEmpty());
}

}  // namespace
}  // namespace winvrx
