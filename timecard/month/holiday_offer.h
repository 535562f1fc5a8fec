#pragma once

#include "timecard/month/holidays.h"
#include "timecard/month/month_settings.h"

#include <string>
#include <vector>

// What a month is offered as holidays before anybody has ticked it: those of the calendar and those
// of the user's own list. An offer proposes; only a recorded month says what is a holiday.

namespace winvrx {

/// In the order of the dates. Throws FileFault.
[[nodiscard]] std::vector<Holiday> offeredHolidays(const Store& store, WorkMonth month);

/// Offered ticked: what is a holiday by law or by the user's own list.
[[nodiscard]] constexpr bool isOfferedTicked(const Holiday& holiday) {
    return holiday.kind != HolidayKind::Optional;
}

/// What a month without a record begins with: the defaults and the offered ticks.
[[nodiscard]] MonthSettings proposedSettings(WorkMonth month, const std::vector<Holiday>& offer);

/// The names of the holidays of a day: "Tiradentes, Sexta-feira Santa"; empty when it has none.
[[nodiscard]] std::string holidayNames(const std::vector<Holiday>& holidays, Date date);

}  // namespace winvrx
