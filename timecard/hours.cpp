#include "timecard/hours.h"

#include "foundation/text.h"

namespace winvrx {

namespace {

using std::chrono::seconds;

constexpr std::int64_t kSecondsInMinute = 60;
constexpr std::int64_t kSecondsInHour = 3600;
constexpr int kWeekdays = 5;
constexpr int kWeeksInMonthlyWage = 5;
constexpr std::size_t kThousands = 3;

std::string withThousands(std::int64_t number) {
    std::string text = std::to_string(number);
    for (std::size_t digits = text.size(); digits > kThousands;) {
        digits -= kThousands;
        text.insert(digits, 1, '.');
    }
    return text;
}

std::string sign(seconds duration) {
    return duration < seconds::zero() ? "-" : "";
}

std::string hoursAndMinutes(seconds duration) {
    const std::int64_t minutes = std::chrono::abs(duration).count() / kSecondsInMinute;
    return (minutes == 0 ? std::string() : sign(duration)) +
           padded(static_cast<int>(minutes / 60), 2) + ":" +
           padded(static_cast<int>(minutes % 60), 2);
}

}  // namespace

seconds lengthOf(const TimePair& pair) {
    if (!pair.complete()) return seconds::zero();
    const auto length = pair.exit->sinceMidnight - pair.entry->sinceMidnight;
    return length.count() < 0 ? length + std::chrono::hours{24} : length;
}

seconds workedOn(const PunchLine& line) {
    return lengthOf(line.morning()) + lengthOf(line.afternoon()) + lengthOf(line.extra());
}

std::string formatted(seconds duration, TotalsFormat format) {
    return format == TotalsFormat::HoursAndMinutes ? hoursAndMinutes(duration)
                                                   : decimalHours(duration, Decimals::Two);
}

std::string decimalHours(seconds duration, Decimals decimals) {
    const int digits = static_cast<int>(decimals);
    const std::int64_t parts = decimals == Decimals::One ? 10 : 100;
    const std::int64_t rounded =
        (std::chrono::abs(duration).count() * parts * 2 + kSecondsInHour) / (kSecondsInHour * 2);
    return (rounded == 0 ? std::string() : sign(duration)) + withThousands(rounded / parts) + "," +
           padded(static_cast<int>(rounded % parts), digits);
}

seconds lengthOf(const DaySchedule& day) {
    return lengthOf(day.morning) + lengthOf(day.afternoon);
}

seconds weeklyHours(const StandardSchedule& schedule) {
    const seconds week = kWeekdays * lengthOf(schedule.weekday);
    return schedule.saturdayIsNormal ? week + lengthOf(schedule.saturday) : week;
}

seconds monthlyHours(const StandardSchedule& schedule) {
    return kWeeksInMonthlyWage * weeklyHours(schedule);
}

}  // namespace winvrx
