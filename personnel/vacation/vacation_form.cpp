#include "personnel/vacation/vacation_form.h"

#include "foundation/values/text.h"

#include <chrono>

namespace winvrx {

namespace {

constexpr int kMostDays = 99;

}  // namespace

VacationForm::VacationForm(int days) {
    put(VacationInput::Days, std::to_string(days));
    shown_ = texts_;
}

VacationForm::VacationForm(const VacationItem& item)
    : texts_{item.first, std::to_string(item.days()), item.last,
             item.soldDays() == 0 ? "" : std::to_string(item.soldDays())},
      shown_(texts_),
      withThirteenth_(item.hasThirteenth()),
      shownThirteenth_(withThirteenth_) {}

void VacationForm::type(VacationInput input, std::string_view typed) {
    put(input, std::string(trimmed(typed)));
    follow(input);
}

void VacationForm::follow(VacationInput typed) {
    const auto from = first();
    if (!from || typed == VacationInput::Sold) return;
    const auto number = parseWholeNumber(text(VacationInput::Days), 1, kMostDays);
    if (typed != VacationInput::Last) {
        if (number) put(VacationInput::Last, dateText(plusDays(*from, *number - 1)));
    } else if (const auto both = days()) {
        put(VacationInput::Days, *both < 1 ? "" : std::to_string(*both));
    }
}

std::optional<Date> VacationForm::first() const {
    return parseDate(text(VacationInput::First));
}

std::optional<Date> VacationForm::last() const {
    return parseDate(text(VacationInput::Last));
}

std::optional<int> VacationForm::days() const {
    const auto from = first();
    const auto to = last();
    if (!from || !to) return std::nullopt;
    const auto days = std::chrono::sys_days(*to) - std::chrono::sys_days(*from);
    return static_cast<int>(days.count()) + 1;
}

std::optional<int> VacationForm::sold() const {
    const std::string& typed = text(VacationInput::Sold);
    return typed.empty() ? 0 : parseWholeNumber(typed, 0, kMostDays);
}

}  // namespace winvrx
