#include "timecard/schedule/standard_schedule.h"

#include "foundation/files/record_names.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

using PairOfDay = TimePair DaySchedule::*;
using TimeOfPair = std::optional<TimeOfDay> TimePair::*;

/// One time of the schedule and its column.
struct TimeField {
    DaySchedule StandardSchedule::*day;
    PairOfDay pair;
    TimeOfPair time;
    Column column;
};

constexpr std::array kTimeFields = {
    TimeField{&StandardSchedule::weekday, &DaySchedule::morning, &TimePair::entry, {1, 5}},
    TimeField{&StandardSchedule::weekday, &DaySchedule::morning, &TimePair::exit, {6, 5}},
    TimeField{&StandardSchedule::weekday, &DaySchedule::afternoon, &TimePair::entry, {11, 5}},
    TimeField{&StandardSchedule::weekday, &DaySchedule::afternoon, &TimePair::exit, {16, 5}},
    TimeField{&StandardSchedule::saturday, &DaySchedule::morning, &TimePair::entry, {23, 5}},
    TimeField{&StandardSchedule::saturday, &DaySchedule::morning, &TimePair::exit, {28, 5}},
    TimeField{&StandardSchedule::saturday, &DaySchedule::afternoon, &TimePair::entry, {33, 5}},
    TimeField{&StandardSchedule::saturday, &DaySchedule::afternoon, &TimePair::exit, {38, 5}},
};
constexpr Column kSaturdayFlag{21, 1};
constexpr Column kSecondFlag{22, 1};
constexpr Column kOpaque{43, 150};

static_assert(kTimeFields.size() == kScheduleTimes);
static_assert(kTimeFields[3].column.end() == kSaturdayFlag.start);
static_assert(kSaturdayFlag.end() == kSecondFlag.start);
static_assert(kSecondFlag.end() == kTimeFields[4].column.start);
static_assert(kTimeFields[7].column.end() == kOpaque.start);
static_assert(kOpaque.end() == kScheduleWidth + 1);

bool flagIn(std::string_view lineBytes, Column column) {
    return fieldOf(lineBytes, column) == "1";
}

void putFlag(RecordLine& line, Column column, bool value) {
    const bool blank = fieldOf(line.bytes(), column).empty();
    if (blank || flagIn(line.bytes(), column) != value) line.put(column, value ? "1" : "0");
}

RecordFile recordOf(const Store& store, const EmployeeKey& key) {
    return {store, key.company, scheduleFileName(key.employee)};
}

}  // namespace

std::optional<TimeOfDay>& timeAt(StandardSchedule& schedule, std::size_t position) {
    const TimeField& field = kTimeFields.at(position);
    return schedule.*field.day.*field.pair.*field.time;
}

const std::optional<TimeOfDay>& timeAt(const StandardSchedule& schedule, std::size_t position) {
    const TimeField& field = kTimeFields.at(position);
    return schedule.*field.day.*field.pair.*field.time;
}

std::string encode(const StandardSchedule& schedule, std::string existing) {
    RecordLine line(std::move(existing), kScheduleWidth);
    for (std::size_t position = 0; position < kScheduleTimes; ++position) {
        const Column column = kTimeFields[position].column;
        const auto& time = timeAt(schedule, position);
        if (!time)
            line.putRaw(column, schedule.unread[position]);
        else if (parseTypedTime(fieldOf(line.bytes(), column)) != time)
            line.put(column, timeText(*time));
    }
    putFlag(line, kSaturdayFlag, schedule.saturdayIsNormal);
    putFlag(line, kSecondFlag, schedule.secondFlag);
    line.putRaw({kOpaque.start, std::max(kOpaque.width, schedule.opaque.size())}, schedule.opaque);
    return line.bytes();
}

StandardSchedule decodeSchedule(std::string_view lineBytes) {
    StandardSchedule schedule;
    for (std::size_t position = 0; position < kScheduleTimes; ++position) {
        const Column column = kTimeFields[position].column;
        const std::string text = fieldOf(lineBytes, column);
        timeAt(schedule, position) = parseTypedTime(text);
        if (!text.empty() && !timeAt(schedule, position))
            schedule.unread[position] = rawFieldOf(lineBytes, column);
    }
    schedule.saturdayIsNormal = flagIn(lineBytes, kSaturdayFlag);
    schedule.secondFlag = flagIn(lineBytes, kSecondFlag);
    if (lineBytes.size() >= kOpaque.start) schedule.opaque = lineBytes.substr(kOpaque.start - 1);
    return schedule;
}

std::string scheduleFileName(const EmployeeCode& employee) {
    return std::string(kScheduleStem) + employee.text() + ".pdx";
}

std::optional<StandardSchedule> loadSchedule(const Store& store, const EmployeeKey& key) {
    const auto lines = recordOf(store, key).lines();
    return lines.empty() ? std::nullopt : std::optional(decodeSchedule(lines.front()));
}

FileSystem::NewContent withSchedule(const Store& store, const EmployeeKey& key,
                                    const StandardSchedule& schedule) {
    const RecordFile record = recordOf(store, key);
    std::vector<std::string> lines = record.lines();
    if (lines.empty()) lines.emplace_back();
    lines.front() = encode(schedule, std::move(lines.front()));
    return {record.path(), joinedLines(lines)};
}

void saveSchedule(const Store& store, const EmployeeKey& key, const StandardSchedule& schedule) {
    const auto content = withSchedule(store, key, schedule);
    store.files.replace(content.file, content.bytes);
}

}  // namespace winvrx
