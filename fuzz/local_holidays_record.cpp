#include "fuzz/invariant.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/month/local_holidays.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file(fuzz::kFolder.file(kLocalHolidaysName), bytes);
    const auto lines = localHolidays(file.store).load();
    for (const LocalHolidayLine& line : lines) {
        if (!line.key()) continue;
        require(encode(line.record, line.bytes) == fuzz::widened(line.bytes, kLocalHolidayWidth),
                "an unchanged holiday keeps its bytes");
        require(completedHolidayDay(line.record.day) == line.record.day,
                "a day is in its full form");
    }
    localHolidays(file.store).save(lines);
    require(file.lines() == file.before, "an unchanged list keeps its lines");
    for (const WorkMonth month : {2024y / 2, 2024y / 11, 2026y / 1})
        for (const Holiday& one : offeredHolidays(file.store, month))
            require(monthOf(one.date) == month, "an offer lies in its month");
    (void)completedHolidayDay(bytes);
}
