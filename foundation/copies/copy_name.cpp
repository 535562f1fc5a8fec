#include "foundation/copies/copy_name.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <set>
#include <tuple>

namespace winvrx {

namespace {

constexpr std::string_view kEnding = ".zip";
constexpr std::string_view kBeforeMark = "-antes";
constexpr std::size_t kMomentLength = std::string_view("2024-03-15-0812").size();
constexpr std::size_t kMostDigits = 6;

std::string momentText(Clock::Moment made) {
    const std::string day = dateText(made.date);
    std::string time = timeText(made.time);
    time.erase(2, 1);
    return day.substr(6, 4) + "-" + day.substr(3, 2) + "-" + day.substr(0, 2) + "-" + time;
}

std::optional<Clock::Moment> parseMoment(std::string_view text) {
    const auto part = [&](std::size_t start, std::size_t count) {
        return std::string(text.substr(start, count));
    };
    const auto date = parseDate(part(8, 2) + "/" + part(5, 2) + "/" + part(0, 4));
    const auto time = parseTime(part(11, 2) + ":" + part(13, 2));
    if (!date || !time) return std::nullopt;
    return Clock::Moment{*date, *time};
}

/// What stands behind "-antes": nothing, or "-2" and so on; 0 for anything else.
int numberIn(std::string_view rest) {
    if (rest.empty()) return 1;
    rest.remove_prefix(1);
    if (!isDigits(rest) || rest.size() > kMostDigits) return 0;
    return std::stoi(std::string(rest));
}

}  // namespace

std::string CopyName::text() const {
    std::string text = momentText(made);
    if (kind == Kind::Before) text += kBeforeMark;
    if (number > 1) text += "-" + std::to_string(number);
    return text + std::string(kEnding);
}

std::optional<CopyName> CopyName::parse(std::string_view fileName) {
    if (!fileName.ends_with(kEnding) || fileName.size() < kMomentLength + kEnding.size())
        return std::nullopt;
    const auto made = parseMoment(fileName.substr(0, kMomentLength));
    if (!made) return std::nullopt;
    CopyName name{.made = *made};
    std::string_view rest = fileName.substr(kMomentLength);
    rest.remove_suffix(kEnding.size());
    if (rest.starts_with(kBeforeMark)) {
        name.kind = Kind::Before;
        rest.remove_prefix(kBeforeMark.size());
    }
    name.number = numberIn(rest);
    // Written back it must be the same name, else it is somebody else's file.
    if (name.text() != fileName) return std::nullopt;
    return name;
}

bool CopyName::isOlderThan(const CopyName& other) const {
    const auto rank = [](const CopyName& name) {
        return std::tuple(name.made.date, name.made.time, name.kind, name.number);
    };
    return rank(*this) < rank(other);
}

std::string momentOfCopy(const CopyName& name) {
    return std::string(weekdayShort(weekdayOf(name.made.date))) + ", " + dateText(name.made.date) +
           " às " + timeText(name.made.time);
}

std::vector<CopyName> outdated(const std::vector<CopyName>& copies, Date today) {
    std::set<Date, std::greater<>> days;
    for (const CopyName& copy : copies)
        if (copy.kind == CopyName::Kind::Daily && copy.made.date <= today)
            days.insert(copy.made.date);
    if (days.size() < kDaysOfCopies) return {};
    const Date oldestKept = *std::next(days.begin(), kDaysOfCopies - 1);
    std::vector<CopyName> old;
    std::copy_if(copies.begin(), copies.end(), std::back_inserter(old),
                 [&](const CopyName& copy) { return copy.made.date < oldestKept; });
    return old;
}

}  // namespace winvrx
