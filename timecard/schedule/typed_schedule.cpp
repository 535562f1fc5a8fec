#include "timecard/schedule/typed_schedule.h"

#include "foundation/values/text.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

std::string recordedText(const StandardSchedule& schedule, std::size_t position) {
    if (const auto& time = timeAt(schedule, position)) return timeText(*time);
    return decodeWindows1252(trimmed(schedule.unread[position]));
}

}  // namespace

TypedSchedule::TypedSchedule(const StandardSchedule& recorded)
    : recorded_(recorded), secondFlag_(recorded.secondFlag) {
    for (std::size_t position = 0; position < kScheduleTimes; ++position)
        texts_[position] = recordedText(recorded_, position);
}

void TypedSchedule::type(std::size_t position, std::string_view text) {
    texts_.at(position) = completedTime(trimmed(text));
}

std::optional<std::string> TypedSchedule::firstFinding() const {
    for (std::size_t position = 0; position < kScheduleTimes; ++position)
        if (std::string finding = findingAt(position); !finding.empty()) return finding;
    return std::nullopt;
}

std::string TypedSchedule::findingAt(std::size_t position) const {
    return typedTimeFinding(texts_.at(position));
}

bool TypedSchedule::hasSaturdayTimes() const {
    return std::any_of(texts_.begin() + kFirstSaturdayTime, texts_.end(),
                       [](const std::string& text) { return !text.empty(); });
}

StandardSchedule TypedSchedule::schedule() const {
    StandardSchedule schedule = recorded_;
    schedule.secondFlag = secondFlag_;
    for (std::size_t position = 0; position < kScheduleTimes; ++position) {
        if (texts_[position] == recordedText(recorded_, position)) continue;
        timeAt(schedule, position) = parseTypedTime(texts_[position]);
        schedule.unread[position].clear();
    }
    return schedule;
}

}  // namespace winvrx
