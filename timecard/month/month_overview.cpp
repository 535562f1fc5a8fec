#include "timecard/month/month_overview.h"

#include "timecard/month/business_days.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/month/selected_month.h"

namespace winvrx {

namespace {

constexpr std::string_view kFromOffer = "Feriados ainda não confirmados.";

}  // namespace

MonthSettings TimecardCalendar::settingsOf(WorkMonth month) const {
    const DataFolder& folder = at_.session.folder;
    if (hasMonthSettings(at_.files, folder, month))
        return loadMonthSettings(at_.files, folder, month);
    return proposedSettings(month, offeredHolidays(at_.files, folder, month));
}

MonthOverview TimecardCalendar::overview(Date today) const {
    const DataFolder& folder = at_.session.folder;
    const WorkMonth present = monthOf(today);
    const auto selected = loadSelectedMonth(at_.files, folder);
    MonthOverview overview;
    overview.month = selected ? selected->month : present;
    const MonthSettings settings = settingsOf(overview.month);
    const MonthDayCounts counts = countDays(settings);
    overview.holidays = settings.holidays();
    overview.recorded = hasMonthSettings(at_.files, folder, overview.month);
    overview.businessDays = counts.businessDays;
    overview.restDays = counts.restDays;
    overview.notices = businessDayNotices(settingsOf(present),
                                          settingsOf(present + std::chrono::months{1}), today);
    if (!hasMonthSettings(at_.files, folder, present)) overview.notices.emplace_back(kFromOffer);
    return overview;
}

}  // namespace winvrx
