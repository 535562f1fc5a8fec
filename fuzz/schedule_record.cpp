#include "fuzz/invariant.h"
#include "timecard/schedule/typed_schedule.h"

using namespace winvrx;
using fuzz::require;

namespace {

constexpr std::size_t kFirstFlag = 20;
constexpr std::size_t kOpaqueWidth = 150;

/// A line as it is written when nothing was changed: full width, blank flags as 0.
std::string unchanged(std::string line) {
    line = fuzz::widened(std::move(line), kScheduleWidth);
    for (const std::size_t flag : {kFirstFlag, kFirstFlag + 1})
        if (line[flag] == ' ') line[flag] = '0';
    return line;
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file("/data/01PadrHor001.pdx", bytes);
    auto lines = file.before;
    auto schedule = loadSchedule(file.store, fuzz::kKey);
    require(schedule.has_value() != lines.empty(), "a schedule is the first line");
    if (!schedule) return;

    saveSchedule(file.store, fuzz::kKey, *schedule);
    lines.front() = unchanged(lines.front());
    require(file.lines() == lines, "an unchanged schedule keeps its bytes");
    schedule->opaque = fuzz::widened(std::move(schedule->opaque), kOpaqueWidth);
    require(decodeSchedule(encode(*schedule)) == *schedule, "a schedule comes back");

    TypedSchedule typed(*schedule);
    require(!typed.changed() && typed.schedule() == *schedule, "showing changes nothing");
    typed.type(1, "12:15");
    saveSchedule(file.store, fuzz::kKey, typed.schedule());
    require(loadSchedule(file.store, fuzz::kKey) == typed.schedule(), "a change comes back");
}
