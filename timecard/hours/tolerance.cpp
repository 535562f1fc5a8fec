#include "timecard/hours/tolerance.h"

#include "timecard/schedule/schedule_hours.h"

namespace winvrx {

namespace {

using std::chrono::minutes;

constexpr minutes kHalfDay = std::chrono::hours{12};
constexpr minutes kDay = std::chrono::hours{24};

/// How much later than scheduled, by the shorter way round the clock.
minutes lateness(TimeOfDay punched, TimeOfDay scheduled) {
    const minutes late = punched.sinceMidnight - scheduled.sinceMidnight;
    if (late > kHalfDay) return late - kDay;
    return late < -kHalfDay ? late + kDay : late;
}

/// The variations of a scheduled pair without their signs; nullopt past the limit of a punch.
std::optional<minutes> variationOf(const TimePair& worked, const TimePair& scheduled) {
    if (lengthOf(worked).count() == 0) return std::nullopt;
    const minutes entry = lateness(*worked.entry, *scheduled.entry);
    const minutes exit = lateness(*worked.exit, *scheduled.exit);
    if (abs(entry) > kMostOfPunch || abs(exit) > kMostOfPunch) return std::nullopt;
    // A pair of a few minutes may have its punches the wrong way round and last a whole day.
    if (lengthOf(worked) - lengthOf(scheduled) != exit - entry) return std::nullopt;
    return abs(entry) + abs(exit);
}

}  // namespace

std::optional<minutes> toleratedVariation(const DaySchedule& worked, const DaySchedule& scheduled) {
    minutes sum{0};
    bool anyScheduled = false;
    for (const auto pair : {&DaySchedule::morning, &DaySchedule::afternoon}) {
        if (lengthOf(scheduled.*pair).count() == 0) continue;
        anyScheduled = true;
        const auto variation = variationOf(worked.*pair, scheduled.*pair);
        if (!variation) return std::nullopt;
        sum += *variation;
    }
    return anyScheduled && sum <= kMostOfDay ? std::optional(sum) : std::nullopt;
}

}  // namespace winvrx
