#include "timecard/month/month_overview.h"

#include "timecard/month/business_days.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/month/selected_month.h"

namespace winvrx {

TimecardCalendar::Seen TimecardCalendar::seen(WorkMonth month) const {
    if (auto record = findMonthRecord(at_.store(), month)) return {record->settings, true};
    return {proposedSettings(month, offeredHolidays(at_.store(), month)), false};
}

std::optional<WorkMonth> TimecardCalendar::lastMonth() const {
    const auto last = at_.session.lastMonth;
    return last && findMonthRecord(at_.store(), *last) ? last : std::nullopt;
}

bool TimecardCalendar::confirmOffered() const {
    return attemptWriting(at_, incorrectData(), [this] {
        const auto month = lastMonth();
        if (month) saveSelectedMonth(at_.store(), {*month, at_.session.shiftFilter});
        return month.has_value();
    });
}

MonthOverview TimecardCalendar::overview(Date today) const {
    const WorkMonth present = monthOf(today);
    const Seen now = seen(present);
    const auto selected = loadSelectedMonth(at_.store());
    MonthOverview overview;
    overview.month = selected ? selected->month : present;
    if (!selected) overview.offered = lastMonth();
    const Seen chosen = overview.month == present ? now : seen(overview.month);
    const MonthDayCounts counts = countDays(chosen.settings);
    overview.holidays = chosen.settings.holidays();
    overview.recorded = chosen.isRecorded;
    if (selected && chosen.isRecorded) overview.inWork = selected->month;
    overview.businessDays = counts.businessDays;
    overview.restDays = counts.restDays;
    overview.notices = businessDayNotices(now.settings, seen(present + kOneMonth).settings, today);
    if (!now.isRecorded) overview.notices.emplace_back("Feriados ainda não confirmados.");
    return overview;
}

}  // namespace winvrx
