#include "timecard/month/half_month.h"

namespace winvrx {

namespace {

constexpr int kLastOfFirstHalf = 15;

}  // namespace

DayRange daysOf(HalfMonth half, WorkMonth month) {
    if (half == HalfMonth::First) return {1, kLastOfFirstHalf};
    return {kLastOfFirstHalf + 1, daysIn(month)};
}

HalfMonth halfOf(Date date) {
    return dayNumber(date) <= kLastOfFirstHalf ? HalfMonth::First : HalfMonth::Second;
}

}  // namespace winvrx
