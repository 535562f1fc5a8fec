#include "timecard/punches/day_check.h"

#include <gtest/gtest.h>

#include <array>

namespace winvrx {
namespace {

TEST(DayCheck, SaysWhyTheTimesOfADayAreDoubtful) {
    struct Case {
        std::array<const char*, 6> times;
        const char* doubt;
    };
    for (const Case& c : {
             Case{{"", "", "", "", "", ""}, ""},
             Case{{"08:00", "12:00", "13:00", "17:00", "18:00", "19:00"}, ""},
             Case{{"06:00", "12:00", "12:00", "18:00", "19:00", "20:00"}, ""},  // two of six hours
             Case{{"22:00", "02:00", "03:00", "06:00", "", ""}, ""},
             Case{{"19:00", "07:00", "", "", "", ""}, ""},
             Case{{"08:00", "12:00", "13:00", "17:00", "06:00", "07:00"}, ""},  // extra before work
             Case{{"08:00", "12:00", "13:00", "17:00", "23:00", "01:00"}, ""},
             Case{{"08:00", "12h", "", "", "", ""}, "Manhã: falta a saída; o par não conta."},
             Case{{"08:00", "12:00", "", "17:00", "", ""},
                  "Tarde: falta a entrada; o par não conta."},
             Case{{"", "", "", "", "18:00", "18:00"},
                  "Extra: entrada e saída iguais; o par não conta."},
             Case{{"12:00", "08:00", "", "", "", ""}, "Manhã: a saída vem antes da entrada."},
             Case{{"08:00", "12:00", "11:30", "17:00", "", ""},
                  "Manhã e Tarde: os horários se sobrepõem."},
             Case{{"08:00", "12:00", "13:00", "17:00", "16:59", "18:00"},
                  "Tarde e Extra: os horários se sobrepõem."},
             Case{{"22:00", "02:00", "01:00", "06:00", "", ""},
                  "Manhã e Tarde: os horários se sobrepõem."},
             Case{{"13:00", "17:00", "08:00", "12:00", "", ""}, "A tarde vem antes da manhã."},
         }) {
        PunchLine line;
        line.morningEntry = c.times[0];
        line.morningExit = c.times[1];
        line.afternoonEntry = c.times[2];
        line.afternoonExit = c.times[3];
        line.extraEntry = c.times[4];
        line.extraExit = c.times[5];
        EXPECT_EQ(doubtAbout(line), c.doubt)
            << c.times[0] << " " << c.times[2] << " " << c.times[4];
    }
}

}  // namespace
}  // namespace winvrx
