#include "timecard/month_overview.h"

#include "timecard/business_days.h"
#include "timecard/selected_month.h"

namespace winvrx {

MonthOverview TimecardCalendar::overview(Date today) const {
    const DataFolder& folder = at_.session.folder;
    const auto selected = loadSelectedMonth(at_.files, folder);
    MonthOverview overview;
    overview.month = selected ? selected->month : monthOf(today);
    const MonthSettings settings = loadMonthSettings(at_.files, folder, overview.month);
    const MonthDayCounts counts = countDays(settings);
    overview.holidays = settings.holidays();
    overview.recorded = hasMonthSettings(at_.files, folder, overview.month);
    overview.businessDays = counts.businessDays;
    overview.restDays = counts.restDays;
    if (hasMonthSettings(at_.files, folder, monthOf(today)))
        overview.notices =
            businessDayNotices(loadMonthSettings(at_.files, folder, monthOf(today)), today);
    return overview;
}

}  // namespace winvrx
