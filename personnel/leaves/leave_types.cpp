#include "personnel/leaves/leave_types.h"

#include <algorithm>
#include <cstddef>

namespace winvrx {

namespace {

/// The place in the list of the entry that begins with the number of the stored text.
template <typename List>
std::optional<std::size_t> placeIn(const List& list, std::string_view stored) {
    const std::size_t digits = list.front().find_first_not_of("0123456789");
    const auto number = [digits](std::string_view text) { return text.substr(0, digits); };
    const auto found = std::ranges::find(list, number(stored), number);
    if (found == list.end()) return std::nullopt;
    return static_cast<std::size_t>(found - list.begin());
}

template <typename List>
std::string_view entryIn(const List& list, std::string_view stored) {
    const auto place = placeIn(list, stored);
    return place ? list[*place] : std::string_view();
}

/// `Type` counts from 1 on in the order of the list.
template <typename Type, typename List>
std::optional<Type> typeIn(const List& list, std::string_view stored) {
    const auto place = placeIn(list, stored);
    return place ? std::optional(static_cast<Type>(*place + 1)) : std::nullopt;
}

}  // namespace

std::string_view leaveTypeOf(std::string_view stored) {
    return entryIn(kLeaveTypes, stored);
}

std::string_view terminationTextOf(std::string_view stored) {
    return entryIn(kTerminationTypes, stored);
}

std::string_view noticeTextOf(std::string_view stored) {
    return entryIn(kNoticeTypes, stored);
}

std::optional<TerminationType> terminationTypeOf(std::string_view stored) {
    return typeIn<TerminationType>(kTerminationTypes, stored);
}

std::optional<NoticeType> noticeTypeOf(std::string_view stored) {
    return typeIn<NoticeType>(kNoticeTypes, stored);
}

}  // namespace winvrx
