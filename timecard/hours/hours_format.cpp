#include "timecard/hours/hours_format.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

using std::chrono::seconds;

constexpr std::int64_t kSecondsInMinute = 60;
constexpr std::int64_t kSecondsInHour = 3600;
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

std::string formatted(seconds duration, TotalsFormat format) {
    return format == TotalsFormat::HoursAndMinutes ? hoursAndMinutes(duration)
                                                   : decimalHours(duration, Decimals::Two);
}

std::string formattedDifference(seconds duration, TotalsFormat format) {
    std::string text = formatted(duration, format);
    const bool isZero = text == formatted(seconds::zero(), format);
    return isZero || duration < seconds::zero() ? text : "+" + text;
}

std::string decimalHours(seconds duration, Decimals decimals) {
    const int digits = static_cast<int>(decimals);
    const std::int64_t parts = decimals == Decimals::One ? 10 : 100;
    const std::int64_t rounded =
        (std::chrono::abs(duration).count() * parts * 2 + kSecondsInHour) / (kSecondsInHour * 2);
    return (rounded == 0 ? std::string() : sign(duration)) + withThousands(rounded / parts) + "," +
           padded(static_cast<int>(rounded % parts), digits);
}

}  // namespace winvrx
