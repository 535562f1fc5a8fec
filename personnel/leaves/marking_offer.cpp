#include "personnel/leaves/marking_offer.h"

#include "foundation/values/text.h"
#include "timecard/punches/leave_marking.h"

#include <algorithm>
#include <iterator>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Afastamento";
constexpr std::string_view kMarkDays =
    "Há dias preenchidos no cartão que este afastamento muda. Deseja marcá-los agora?";
constexpr std::size_t kMostDays = 12;

std::vector<Date> datesOf(const std::vector<UnmarkedDay>& days, bool UnmarkedDay::*kind) {
    std::vector<Date> dates;
    for (const UnmarkedDay& day : days)
        if (day.*kind) dates.push_back(day.date);
    return dates;
}

}  // namespace

std::string datesText(const std::vector<Date>& dates) {
    std::vector<std::string> texts;
    std::ranges::transform(dates, std::back_inserter(texts), dateText);
    return namesText(texts, kMostDays);
}

void offerMarking(const Workplace& at, const PayrollLock& payroll, const EmployeeKey& key,
                  const LeaveCalendar& calendar, LeavePeriod days) {
    (void)attempt(at, incorrectData(), [&] {
        const auto unmarked = unmarkedDays(at.store(), payroll, key, calendar, days);
        const auto closed = datesOf(unmarked, &UnmarkedDay::closed);
        if (unmarked.size() == closed.size()) return;
        // Those that a termination marked, and that are blank now, were asked about then.
        const auto asks = std::ranges::count_if(
            unmarked, [](const UnmarkedDay& day) { return !day.onLeave && !day.closed; });
        const auto timed = datesOf(unmarked, &UnmarkedDay::hasTimes);
        std::string detail = countOf(static_cast<std::size_t>(asks), "dia") + ".";
        if (!timed.empty()) detail += " Perdem as horas: " + datesText(timed) + ".";
        if (!closed.empty()) detail += " De mês fechado, não são marcados: " + datesText(closed);
        const Message asked = timed.empty() ? question(kTitle, std::string(kMarkDays), detail)
                                            : warning(kTitle, std::string(kMarkDays), detail);
        if (asks > 0 && !at.person.agrees(asked)) return;
        const auto hold = holdFolder(at);
        (void)markDays(at.store(), payroll, key, calendar, days);
    });
}

}  // namespace winvrx
