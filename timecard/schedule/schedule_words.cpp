#include "timecard/schedule/schedule_words.h"

namespace winvrx {

namespace {

std::string pairText(const TimePair& pair) {
    if (!pair.entry && !pair.exit) return {};
    const auto shown = [](const std::optional<TimeOfDay>& time) {
        return time ? timeText(*time) : std::string();
    };
    return "Ent:" + shown(pair.entry) + " Saí:" + shown(pair.exit);
}

std::string mealText(const DaySchedule& schedule) {
    if (!schedule.morning.exit || !schedule.afternoon.entry) return {};
    return timeText(*schedule.morning.exit) + " às " + timeText(*schedule.afternoon.entry);
}

}  // namespace

void putSchedule(MergeWords& words, const DaySchedule& schedule) {
    const std::string morning = pairText(schedule.morning);
    const std::string afternoon = pairText(schedule.afternoon);
    words.put("horario", morning + (morning.empty() || afternoon.empty() ? "" : " ") + afternoon);
    words.put("refeicao", mealText(schedule));
}

}  // namespace winvrx
