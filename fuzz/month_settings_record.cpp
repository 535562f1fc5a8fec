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

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file(fuzz::kFolder.file(monthRecordName(kMonth)), bytes);
    MonthSettings settings = loadMonthSettings(file.store, kMonth);

    saveMonthSettings(file.store, settings);
    const auto& before = file.before;
    const auto after = file.lines();
    require(after.size() == std::max(before.size(), kKnownLines), "every line is there");
    for (std::size_t line = 0; line < before.size(); ++line)
        require(after[line] == before[line] || (line < kKnownLines && isBlank(before[line])),
                "an unchanged month keeps its lines");
    require(loadMonthSettings(file.store, kMonth) == settings, "a month comes back");

    settings.fixedMonth = !settings.fixedMonth;
    settings.closingDay = settings.closingDay % kHighestClosingDay + 1;
    settings.setHoliday(*parseDate("29/03/2024"), !settings.isHoliday(*parseDate("29/03/2024")));
    saveMonthSettings(file.store, settings);
    require(loadMonthSettings(file.store, kMonth) == settings, "a change comes back");
}
