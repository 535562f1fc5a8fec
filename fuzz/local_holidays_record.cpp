#include "fuzz/invariant.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/month/local_holidays.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    std::string& file = files.content[fuzz::kFolder.file(kLocalHolidaysName)];
    file = fuzz::textOf(data, size);
    const auto before = splitLines(file);
    const auto lines = localHolidays({files, fuzz::kFolder}).load();
    for (const LocalHolidayLine& line : lines) {
        if (!line.key()) continue;
        require(encode(line.record, line.bytes) == fuzz::widened(line.bytes, kLocalHolidayWidth),
                "an unchanged holiday keeps its bytes");
        require(completedHolidayDay(line.record.day) == line.record.day,
                "a day is in its full form");
    }
    localHolidays({files, fuzz::kFolder}).save(lines);
    require(splitLines(file) == before, "an unchanged list keeps its lines");
    for (const WorkMonth month : {2024y / 2, 2024y / 11, 2026y / 1})
        for (const Holiday& one : offeredHolidays({files, fuzz::kFolder}, month))
            require(monthOf(one.date) == month, "an offer lies in its month");
    (void)completedHolidayDay(fuzz::textOf(data, size));
    return 0;
}
