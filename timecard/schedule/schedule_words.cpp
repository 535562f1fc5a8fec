#include "timecard/schedule/schedule_words.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

std::string pairText(const TimePair& pair) {
    if (!pair.entry && !pair.exit) return {};
    return "Ent:" + timeText(pair.entry) + " Saí:" + timeText(pair.exit);
}

std::string mealText(const DaySchedule& schedule) {
    if (!schedule.morning.exit || !schedule.afternoon.entry) return {};
    return timeText(*schedule.morning.exit) + " às " + timeText(*schedule.afternoon.entry);
}

}  // namespace

void putSchedule(MergeWords& words, const DaySchedule& schedule) {
    words.put("horario", joined({pairText(schedule.morning), pairText(schedule.afternoon)}, " "));
    words.put("refeicao", mealText(schedule));
}

}  // namespace winvrx
