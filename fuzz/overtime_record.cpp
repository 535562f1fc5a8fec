#include "timecard/month/overtime_record.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

void fuzz::tryBytes(std::string_view bytes) {
    constexpr WorkMonth kMonth = 2024y / 3;
    fuzz::AnyFile file("/data/01MedHorExtr001", bytes);
    for (const std::string& line : file.before)
        if (const auto read = decodeOvertime(line))
            require(encode(*read, line) == fuzz::widened(line, kOvertimeWidth),
                    "an unchanged line keeps its bytes");

    const auto own = loadOvertime(file.store, fuzz::kKey, kMonth);
    OvertimePercents percents = own.value_or(OvertimePercents());
    percents.minimumPercent = (percents.minimumPercent + 1) % (kHighestPercent + 1);
    saveOvertime(file.store, fuzz::kKey, {kMonth, percents});
    require(loadOvertime(file.store, fuzz::kKey, kMonth) == percents,
            "a month's figures come back");
    require(file.lines().size() == file.before.size() + (own ? 0 : 1), "every line is there");
    require(file.changedLines() == 1, "the other lines keep their bytes");
}
