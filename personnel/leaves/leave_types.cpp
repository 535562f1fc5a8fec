#include "personnel/leaves/leave_types.h"

#include <cstddef>

namespace winvrx {

namespace {

/// The place in the list of the entry that begins with the same number of `digits` digits.
template <typename List>
std::optional<std::size_t> placeIn(const List& list, std::string_view stored, std::size_t digits) {
    for (std::size_t place = 0; place < list.size(); ++place)
        if (stored.size() >= digits && list[place].substr(0, digits) == stored.substr(0, digits))
            return place;
    return std::nullopt;
}

template <typename List>
std::string_view entryIn(const List& list, std::string_view stored, std::size_t digits) {
    const auto place = placeIn(list, stored, digits);
    return place ? list[*place] : std::string_view();
}

constexpr std::size_t kLeaveDigits = 3;
constexpr std::size_t kTerminationDigits = 2;

}  // namespace

std::string_view leaveTypeOf(std::string_view stored) {
    return entryIn(kLeaveTypes, stored, kLeaveDigits);
}

std::string_view terminationTextOf(std::string_view stored) {
    return entryIn(kTerminationTypes, stored, kTerminationDigits);
}

std::string_view noticeTextOf(std::string_view stored) {
    return entryIn(kNoticeTypes, stored, kTerminationDigits);
}

std::optional<TerminationType> terminationTypeOf(std::string_view stored) {
    const auto place = placeIn(kTerminationTypes, stored, kTerminationDigits);
    return place ? std::optional(static_cast<TerminationType>(*place + 1)) : std::nullopt;
}

std::optional<NoticeType> noticeTypeOf(std::string_view stored) {
    const auto place = placeIn(kNoticeTypes, stored, kTerminationDigits);
    return place ? std::optional(static_cast<NoticeType>(*place + 1)) : std::nullopt;
}

}  // namespace winvrx
