#include "timecard/month/month_settings.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

/// Lines of the record behind the holiday cells, counted from 1 as docs/record-layouts.md does: the
/// figures of kOvertimeFigures and what stands between and behind them.
constexpr std::array<std::size_t, kOvertimeFigures.size()> kFigureLines = {43, 44, 45, 46,
                                                                           48, 49, 50, 51};
constexpr std::size_t kRecordTicksLine = 47;
constexpr std::size_t kClosingDayLine = 52;
constexpr std::size_t kFixedMonthLine = 53;
constexpr std::size_t kKnownLines = 53;
static_assert(kFigureLines.front() == kHolidayCells + 1);
static_assert(kHolidayCells + kFigureLines.size() + 3 == kKnownLines);

/// The numbers of the known lines, in their order.
using Values = std::array<int, kKnownLines>;

Values valuesOf(const MonthSettings& settings) {
    Values values{};
    std::ranges::copy(settings.holidayCells, values.begin());
    for (std::size_t i = 0; i < kFigureLines.size(); ++i)
        values[kFigureLines[i] - 1] = kOvertimeFigures[i].read(settings.overtime);
    values[kRecordTicksLine - 1] = settings.recordTicks ? 1 : 0;
    values[kClosingDayLine - 1] = settings.closingDay;
    values[kFixedMonthLine - 1] = settings.fixedMonth ? 1 : 0;
    return values;
}

MonthSettings settingsOf(WorkMonth month, const Values& values) {
    MonthSettings settings;
    settings.month = month;
    for (std::size_t cell = 0; cell < kHolidayCells; ++cell)
        settings.holidayCells[cell] = values[cell] == 1;
    for (std::size_t i = 0; i < kFigureLines.size(); ++i)
        kOvertimeFigures[i].write(settings.overtime, values[kFigureLines[i] - 1]);
    settings.recordTicks = values[kRecordTicksLine - 1] == 1;
    settings.closingDay = values[kClosingDayLine - 1];
    settings.fixedMonth = values[kFixedMonthLine - 1] == 1;
    return settings;
}

/// The number of a known line; nullopt when it is none of the line's range.
std::optional<int> numberOf(const std::string& bytes, std::size_t line) {
    if (line == kClosingDayLine) return parseWholeNumber(bytes, 1, kHighestClosingDay);
    const auto* figure = std::find(kFigureLines.begin(), kFigureLines.end(), line);
    if (figure == kFigureLines.end()) return parseWholeNumber(bytes, 0, 1);
    const auto place = static_cast<std::size_t>(figure - kFigureLines.begin());
    return parseWholeNumber(bytes, 0, kOvertimeFigures[place].highest);
}

MonthSettings decode(WorkMonth month, const std::vector<std::string>& lines) {
    Values values = valuesOf({});
    for (std::size_t place = 0; place < std::min(lines.size(), kKnownLines); ++place)
        values[place] = numberOf(lines[place], place + 1).value_or(values[place]);
    return settingsOf(month, values);
}

/// `settings` put into a record that stands.
std::vector<std::string> encodeInto(std::vector<std::string> record,
                                    const MonthSettings& settings) {
    const Values before = valuesOf(decode(settings.month, record));
    const Values after = valuesOf(settings);
    for (std::size_t place = 0; place < kKnownLines; ++place) {
        const bool missing = place >= record.size();
        if (missing) record.emplace_back();
        if (missing || before[place] != after[place] || trimmed(record[place]).empty())
            record[place] = std::to_string(after[place]);
    }
    return record;
}

RecordFile recordOf(const Store& store, WorkMonth month) {
    return {store, monthRecordName(month)};
}

}  // namespace

bool MonthSettings::isHoliday(Date date) const {
    return monthOf(date) == month && holidayCells[holidayCellOf(date)];
}

void MonthSettings::setHoliday(Date date, bool holiday) {
    if (monthOf(date) == month) holidayCells[holidayCellOf(date)] = holiday;
}

std::vector<Date> MonthSettings::holidays() const {
    std::vector<Date> dates;
    const std::size_t firstCell = holidayCellOf(firstDay(month));
    for (int day = 0; day < daysIn(month); ++day)
        if (holidayCells[firstCell + static_cast<std::size_t>(day)])
            dates.push_back(plusDays(firstDay(month), day));
    return dates;
}

std::size_t holidayCellOf(Date date) {
    const unsigned blanksBefore = weekdayOf(firstDay(monthOf(date))).c_encoding();
    return blanksBefore + unsigned{date.day()} - 1;
}

std::string monthRecordName(WorkMonth month) {
    return monthKey(month) + "ds.rdx";
}

bool hasMonthSettings(const Store& store, WorkMonth month) {
    return recordOf(store, month).exists();
}

MonthSettings loadMonthSettings(const Store& store, WorkMonth month) {
    return decode(month, recordOf(store, month).lines());
}

std::vector<UnreadLine> unreadMonthLines(const Store& store, WorkMonth month) {
    std::vector<UnreadLine> unread;
    const auto lines = recordOf(store, month).lines();
    for (std::size_t line = 1; line <= lines.size(); ++line) {
        const std::string& bytes = lines[line - 1];
        const bool understood = line <= kKnownLines && numberOf(bytes, line);
        if (!understood && !trimmed(bytes).empty()) unread.push_back({line, readableText(bytes)});
    }
    return unread;
}

void saveMonthSettings(const Store& store, const MonthSettings& settings) {
    RecordFile record = recordOf(store, settings.month);
    record.rewrite(encodeInto(record.lines(), settings));
}

}  // namespace winvrx
