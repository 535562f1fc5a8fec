#include "timecard/punches/situation.h"

#include "foundation/values/text.h"
#include "timecard/punches/punch_record.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(Situation, IsKnownByItsWordItsStoredMarkAndItsShortForm) {
    struct Case {
        const char* text;
        DayMeaning meaning;
    };
    for (const Case& c : {Case{"Falta", DayMeaning::Missing},
                          Case{"Falta Injustificada", DayMeaning::Missing},
                          Case{"Falta Injustifi", DayMeaning::Missing},
                          Case{"Falta Inj.", DayMeaning::Missing},
                          Case{"FERIADO", DayMeaning::Holiday},
                          Case{"DESCANSO SEMANAL", DayMeaning::WeeklyRest},
                          Case{"DESCANSO SEMANA", DayMeaning::WeeklyRest},
                          Case{"AFASTAMENTO", DayMeaning::Leave},
                          Case{"Atestado", DayMeaning::Excused},
                          Case{"Abonado", DayMeaning::Excused},
                          Case{"Férias", DayMeaning::Excused},
                          Case{"Folga", DayMeaning::Excused},
                          Case{"FALTA", DayMeaning::Missing},
                          Case{"falta inj.", DayMeaning::Missing},
                          Case{"FERIAS", DayMeaning::Excused},
                          Case{"Feriado", DayMeaning::Holiday},
                          Case{"descanso semana", DayMeaning::WeeklyRest},
                          Case{"", DayMeaning::Work},
                          Case{"Faltas", DayMeaning::Work},
                          Case{"Fal", DayMeaning::Work},
                          Case{"treinamento", DayMeaning::Work}})
        EXPECT_EQ(meaningOf(c.text), c.meaning) << c.text;
}

TEST(Situation, IsMeantByItsWordOrTheOnlyBeginning) {
    struct Case {
        const char* typed;
        const char* meant;
    };
    for (const Case& c :
         {Case{"falta", "Falta"}, Case{"FALTA INJUSTIFICADA", "Falta Injustificada"},
          Case{"fal", "Falta"}, Case{"falta i", "Falta Injustificada"}, Case{"ferias", "Férias"},
          Case{"Feriado", "FERIADO"}, Case{"fol", "Folga"}, Case{"desc", "DESCANSO SEMANAL"},
          Case{"fer", "fer"}, Case{"fa", "fa"}, Case{"", ""}, Case{"Falta Inj.", "Falta Inj."},
          Case{"Faltas", "Faltas"}, Case{"Reunião", "Reunião"}})
        EXPECT_EQ(meantSituation(c.typed), c.meant) << c.typed;
}

TEST(Situation, EveryMarkIsWhatTheColumnKeepsOfItsWord) {
    for (const Situation& one : kSituations) {
        EXPECT_EQ(one.mark, trimmed(firstCharacters(one.word, kSituationWidth)));
        PunchLine line;
        line.situation = one.word;
        EXPECT_EQ(decodePunchLine(encode(line)).situation, one.word);
    }
}

}  // namespace
}  // namespace winvrx
