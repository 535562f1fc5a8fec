#include "timecard/schedule/typed_time.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(TypedTime, TakesWhatHandsWriteAndGuessesNothing) {
    const std::string none = " não é uma hora de 00:00 a 23:59.";
    const std::string half =
        " não é uma hora: escreva os dois algarismos dos minutos, como em 8,30.";
    struct Case {
        const char* typed;
        const char* meant;
        std::string finding;
        bool mayBecome;
    };
    for (const Case& c :
         std::vector<Case>{{"8", "08:00", "", true},     {"18", "18:00", "", true},
                           {"800", "08:00", "", true},   {"0800", "08:00", "", true},
                           {"1630", "16:30", "", true},  {"8:0", "08:00", "", true},
                           {"8:5", "08:05", "", true},   {"8:00", "08:00", "", true},
                           {"08:00", "08:00", "", true}, {"8,30", "08:30", "", true},
                           {"8.30", "08:30", "", true},  {"0", "00:00", "", true},
                           {"23:59", "23:59", "", true}, {"", "", "", true},
                           {"8,5", "", half, true},      {"8.5", "", half, true},
                           {"8,", "", half, true},       {"8,6", "", none, false},
                           {"24", "", none, true},       {"24:00", "", none, false},
                           {"2400", "", none, false},    {"860", "", none, false},
                           {"8:60", "", none, false},    {"8:", "", none, true},
                           {":30", "", none, false},     {"8:0:0", "", none, false},
                           {"-8", "", none, false},      {"8h", "", none, false},
                           {"12345", "", none, false},   {"008:00", "", none, false},
                           {"8:000", "", none, false},   {"abc", "", none, false},
                           {" 8", "", none, false}}) {
        const std::string typed = c.typed;
        EXPECT_EQ(parseTypedTime(typed), parseTime(c.meant)) << typed;
        EXPECT_EQ(typedTimeFinding(typed),
                  c.finding.empty() ? "" : "\"" + typed + "\"" + c.finding);
        EXPECT_EQ(mayBecomeTime(typed), c.mayBecome) << typed;
    }
}

}  // namespace
}  // namespace winvrx
