#include "timecard/schedule/typed_time.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::string_view kSeparators = ":.,";
constexpr std::string_view kDecimalSeparators = ".,";
constexpr std::size_t kMinuteDigits = 2;

/// One or two digits as a number up to `highest`.
std::optional<int> shortNumber(std::string_view digits, int highest) {
    const bool isShort = isDigits(digits) && digits.size() <= 2;
    return isShort ? parseWholeNumber(digits, 0, highest) : std::nullopt;
}

/// "8,5": a decimal to one hand, a shortened time to another.
bool hasHalfMinutes(std::string_view text) {
    const std::size_t separator = text.find_first_of(kDecimalSeparators);
    return separator != std::string_view::npos && text.size() - separator <= kMinuteDigits;
}

}  // namespace

std::optional<TimeOfDay> parseTypedTime(std::string_view text) {
    if (const auto time = parseTime(text)) return time;
    if (text.empty() || hasHalfMinutes(text)) return std::nullopt;
    const std::size_t separator = text.find_first_of(kSeparators);
    std::string_view hours = text.substr(0, separator);
    std::string_view minutes = "0";
    if (separator != std::string_view::npos) {
        minutes = text.substr(separator + 1);
    } else if (text.size() > kMinuteDigits) {
        hours = text.substr(0, text.size() - kMinuteDigits);
        minutes = text.substr(text.size() - kMinuteDigits);
    }
    const auto hour = shortNumber(hours, 23);
    const auto minute = shortNumber(minutes, 59);
    if (!hour || !minute) return std::nullopt;
    return TimeOfDay{std::chrono::hours{*hour} + std::chrono::minutes{*minute}};
}

std::string completedTime(std::string_view typed) {
    const auto time = parseTypedTime(typed);
    return time ? timeText(*time) : std::string(typed);
}

std::string typedTimeFinding(std::string_view text) {
    if (text.empty() || parseTypedTime(text)) return {};
    const std::string quoted = "\"" + shortened(text) + "\" não é uma hora";
    return hasHalfMinutes(text) && mayBecomeTime(text)
               ? quoted + ": escreva os dois algarismos dos minutos, como em 8,30."
               : quoted + " de 00:00 a 23:59.";
}

bool mayBecomeTime(std::string_view text) {
    constexpr std::array kEndings = {"", "0", "00"};
    return std::any_of(kEndings.begin(), kEndings.end(), [text](const char* ending) {
        return parseTypedTime(std::string(text) + ending).has_value();
    });
}

}  // namespace winvrx
