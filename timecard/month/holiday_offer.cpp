#include "timecard/month/holiday_offer.h"

#include "foundation/values/text.h"
#include "timecard/month/local_holidays.h"

#include <algorithm>

namespace winvrx {

std::vector<Holiday> offeredHolidays(const Store& store, WorkMonth month) {
    std::vector<Holiday> offer = calendarHolidays(month);
    for (const LocalHolidayLine& line : localHolidays(store).load()) {
        const auto day = line.key();
        const auto date = day ? dateIn(month, *day) : std::nullopt;
        if (date) offer.push_back({*date, line.record.name, HolidayKind::Local});
    }
    std::ranges::stable_sort(offer, {}, &Holiday::date);
    return offer;
}

MonthSettings proposedSettings(WorkMonth month, const std::vector<Holiday>& offer) {
    MonthSettings settings;
    settings.month = month;
    for (const Holiday& holiday : offer)
        if (isOfferedTicked(holiday)) settings.setHoliday(holiday.date, true);
    return settings;
}

std::string holidayNames(const std::vector<Holiday>& holidays, Date date) {
    return joined(holidays, ", ", [date](const Holiday& holiday) {
        return holiday.date == date ? holiday.name : std::string();
    });
}

}  // namespace winvrx
