#include "timecard/hours/night_time.h"

namespace winvrx {

namespace {

using std::chrono::seconds;

constexpr std::chrono::hours kDay{24};

}  // namespace

bool isNight(seconds sinceMidnight) {
    const seconds clock = sinceMidnight % kDay;
    return clock < kNightEnd || clock >= kNightStart;
}

seconds nextTurn(seconds sinceMidnight) {
    const seconds clock = sinceMidnight % kDay;
    const seconds midnight = sinceMidnight - clock;
    if (clock < kNightEnd) return midnight + kNightEnd;
    return midnight + (clock < kNightStart ? seconds{kNightStart} : seconds{kDay + kNightEnd});
}

}  // namespace winvrx
