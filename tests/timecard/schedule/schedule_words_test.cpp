#include "timecard/schedule/schedule_words.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(ScheduleWords, NameThePairsThatHaveTimes) {
    const TimePair morning{parseTime("06:00"), parseTime("12:00")};
    const TimePair night{parseTime("22:00"), parseTime("06:00")};
    const TimePair entry{parseTime("13:00"), std::nullopt};
    struct Case {
        DaySchedule schedule;
        const char* times;
        const char* meal;
    };
    for (const Case& one :
         {Case{{morning, {}}, "Ent:06:00 Saí:12:00", ""},
          Case{{{}, night}, "Ent:22:00 Saí:06:00", ""},
          Case{{morning, entry}, "Ent:06:00 Saí:12:00 Ent:13:00 Saí:", "12:00 às 13:00"},
          Case{{}, "", ""}}) {
        MergeWords words;
        putSchedule(words, one.schedule);
        EXPECT_EQ(words.at("horario"), one.times);
        EXPECT_EQ(words.at("refeicao"), one.meal);
    }
}

}  // namespace
}  // namespace winvrx
