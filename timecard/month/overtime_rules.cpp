#include "timecard/month/overtime_rules.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr int kHighestHours = 24;
constexpr seconds kHundredth{36};

/// "30" behind a colon, "5" or "50" behind a comma.
std::optional<seconds> partOfHour(char sign, std::string_view digits) {
    if (!isDigits(digits)) return std::nullopt;
    const auto number = parseWholeNumber(digits, 0, sign == ':' ? 59 : 99);
    if (!number || digits.size() > 2) return std::nullopt;
    if (sign != ':') return kHundredth * *number * (digits.size() == 1 ? 10 : 1);
    return digits.size() == 2 ? std::optional<seconds>(minutes{*number}) : std::nullopt;
}

}  // namespace

std::optional<seconds> parseThreshold(std::string_view text) {
    const std::string_view typed = trimmed(text);
    const std::size_t sign = typed.find_first_of(":,.");
    const auto whole = parseWholeNumber(typed.substr(0, sign), 0, kHighestHours);
    if (!whole) return std::nullopt;
    seconds threshold = hours{*whole};
    if (sign != std::string_view::npos) {
        const auto part = partOfHour(typed[sign], typed.substr(sign + 1));
        if (!part) return std::nullopt;
        threshold += *part;
    }
    return threshold <= hours{kHighestHours} ? std::optional(threshold) : std::nullopt;
}

std::string thresholdText(seconds threshold) {
    const auto whole = std::chrono::floor<hours>(threshold);
    const seconds part = threshold - whole;
    const std::string start = std::to_string(whole.count());
    if (part.count() == 0) return start;
    if (part % minutes{1} == seconds{0})
        return padded(static_cast<int>(whole.count()), 2) + ":" +
               padded(static_cast<int>(part / minutes{1}), 2);
    return start + "," + padded(static_cast<int>(part / kHundredth), 2);
}

}  // namespace winvrx
