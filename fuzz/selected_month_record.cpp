#include "foundation/files/record_names.h"
#include "fuzz/invariant.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/selected_month.h"

using namespace winvrx;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    files.content[fuzz::kFolder.file(kSelectedMonthName)] = fuzz::textOf(data, size);
    const auto selected = loadSelectedMonth({files, fuzz::kFolder});
    if (!selected) return 0;
    require(selected->month.ok(), "a chosen month is one of the calendar");
    require(
        fuzz::kFolder.file(monthRecordName(selected->month)).parent_path() == fuzz::kFolder.path(),
        "a month names a file outside the data folder");
    saveSelectedMonth({files, fuzz::kFolder}, *selected);
    const auto again = loadSelectedMonth({files, fuzz::kFolder});
    require(again && again->month == selected->month && again->shiftFilter == selected->shiftFilter,
            "the choice comes back");
    return 0;
}
