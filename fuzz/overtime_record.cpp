#include "timecard/month/overtime_record.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr WorkMonth kMonth = 2024y / 3;
    testing::MemoryFiles files;
    std::string& file = files.content["/data/01MedHorExtr001"];
    file = fuzz::textOf(data, size);
    const auto before = splitLines(file);
    for (const std::string& line : before)
        if (const auto read = decodeOvertime(line))
            require(encode(*read, line) == fuzz::widened(line, kOvertimeWidth),
                    "an unchanged line keeps its bytes");

    const auto own =
        loadOvertime({files, fuzz::kFolder}, {fuzz::kCompany, fuzz::kEmployee}, kMonth);
    OvertimePercents percents = own.value_or(OvertimePercents());
    percents.minimumPercent = (percents.minimumPercent + 1) % (kHighestPercent + 1);
    saveOvertime({files, fuzz::kFolder}, {fuzz::kCompany, fuzz::kEmployee}, {kMonth, percents});
    require(
        loadOvertime({files, fuzz::kFolder}, {fuzz::kCompany, fuzz::kEmployee}, kMonth) == percents,
        "a month's figures come back");
    const auto after = splitLines(file);
    require(after.size() == before.size() + (own ? 0 : 1), "every line is there");
    std::size_t changed = 0;
    for (std::size_t line = 0; line < before.size(); ++line)
        if (after[line] != before[line]) ++changed;
    require(changed == (own ? 1 : 0), "the other lines keep their bytes");
    return 0;
}
