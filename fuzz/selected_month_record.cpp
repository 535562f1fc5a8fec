#include "foundation/files/record_names.h"
#include "fuzz/invariant.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/selected_month.h"

using namespace winvrx;
using fuzz::require;

void fuzz::tryBytes(std::string_view bytes) {
    const fuzz::AnyFile file(fuzz::kFolder.file(kSelectedMonthName), bytes);
    const auto selected = loadSelectedMonth(file.store);
    if (!selected) return;
    require(selected->month.ok(), "a chosen month is one of the calendar");
    require(
        fuzz::kFolder.file(monthRecordName(selected->month)).parent_path() == fuzz::kFolder.path(),
        "a month names a file outside the data folder");
    saveSelectedMonth(file.store, *selected);
    const auto again = loadSelectedMonth(file.store);
    require(again && again->month == selected->month && again->shiftFilter == selected->shiftFilter,
            "the choice comes back");
}
