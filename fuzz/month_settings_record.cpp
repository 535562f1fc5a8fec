#include "fuzz/invariant.h"
#include "timecard/month/month_settings.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

namespace {

constexpr WorkMonth kMonth = 2024y / 3;
constexpr std::size_t kKnownLines = 53;

bool isBlank(const std::string& line) {
    return trimmed(line).empty();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    std::string& file = files.content[fuzz::kFolder.file(monthRecordName(kMonth))];
    file = fuzz::textOf(data, size);
    const auto before = splitLines(file);
    MonthSettings settings = loadMonthSettings({files, fuzz::kFolder}, kMonth);

    saveMonthSettings({files, fuzz::kFolder}, settings);
    const auto after = splitLines(file);
    require(after.size() == std::max(before.size(), kKnownLines), "every line is there");
    for (std::size_t line = 0; line < before.size(); ++line)
        require(after[line] == before[line] || (line < kKnownLines && isBlank(before[line])),
                "an unchanged month keeps its lines");
    require(loadMonthSettings({files, fuzz::kFolder}, kMonth) == settings, "a month comes back");

    settings.fixedMonth = !settings.fixedMonth;
    settings.closingDay = settings.closingDay % kHighestClosingDay + 1;
    settings.setHoliday(*parseDate("29/03/2024"), !settings.isHoliday(*parseDate("29/03/2024")));
    saveMonthSettings({files, fuzz::kFolder}, settings);
    require(loadMonthSettings({files, fuzz::kFolder}, kMonth) == settings, "a change comes back");
    return 0;
}
