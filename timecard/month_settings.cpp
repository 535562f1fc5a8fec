#include "timecard/month_settings.h"

#include "foundation/text.h"

namespace winvrx {

namespace {

/// Lines of the record, counted from 0 as a vector counts them. The holiday cells come first.
enum RecordLineIndex : std::size_t {
    kMinimumPercent = kHolidayCells,
    kNightMinimumPercent,
    kMaximumPercent,
    kNightMaximumPercent,
    kRecordTicks,
    kDifferentiatedPercent,
    kMode,
    kTotalsFormat,
    kThresholdHours,
    kClosingDay,
    kFixedMonth,
    kKnownLines
};

// Counted from 1, as docs/record-layouts.md counts them.
static_assert(kMinimumPercent + 1 == 43);
static_assert(kRecordTicks + 1 == 47);
static_assert(kThresholdHours + 1 == 51);
static_assert(kKnownLines == 53);

/// The values of a record, with the default wherever a line is missing or out of range.
class RecordReader {
  public:
    explicit RecordReader(const std::vector<std::string>& lines) : lines_(lines) {}

    [[nodiscard]] int number(std::size_t line, int lowest, int highest, int otherwise) const {
        if (line >= lines_.size()) return otherwise;
        return parseWholeNumber(lines_[line], lowest, highest).value_or(otherwise);
    }

    [[nodiscard]] bool flag(std::size_t line, bool otherwise) const {
        return number(line, 0, 1, otherwise ? 1 : 0) == 1;
    }

  private:
    const std::vector<std::string>& lines_;
};

MonthSettings decode(WorkMonth month, const std::vector<std::string>& lines) {
    MonthSettings settings;
    settings.month = month;
    const RecordReader record(lines);
    for (std::size_t cell = 0; cell < kHolidayCells; ++cell)
        settings.holidayCells[cell] = record.flag(cell, false);
    const auto percent = [&](std::size_t line, int& field) {
        field = record.number(line, 0, kHighestPercent, field);
    };
    percent(kMinimumPercent, settings.overtime.minimumPercent);
    percent(kNightMinimumPercent, settings.overtime.nightMinimumPercent);
    percent(kMaximumPercent, settings.overtime.maximumPercent);
    percent(kNightMaximumPercent, settings.overtime.nightMaximumPercent);
    settings.recordTicks = record.flag(kRecordTicks, settings.recordTicks);
    settings.overtime.differentiatedPercent = record.flag(kDifferentiatedPercent, false);
    settings.overtime.mode =
        record.flag(kMode, false) ? OvertimeMode::SingleLevel : OvertimeMode::BothLevels;
    settings.overtime.totalsFormat = record.flag(kTotalsFormat, false)
                                         ? TotalsFormat::DecimalHours
                                         : TotalsFormat::HoursAndMinutes;
    settings.overtime.thresholdHours =
        record.number(kThresholdHours, 0, kHighestThreshold, settings.overtime.thresholdHours);
    settings.closingDay = record.number(kClosingDay, 1, kHighestClosingDay, settings.closingDay);
    settings.fixedMonth = record.flag(kFixedMonth, settings.fixedMonth);
    return settings;
}

std::vector<std::string> encode(const MonthSettings& settings) {
    std::vector<std::string> lines;
    lines.reserve(kKnownLines);
    const auto flag = [&lines](bool value) { lines.emplace_back(value ? "1" : "0"); };
    const auto number = [&lines](int value) { lines.push_back(std::to_string(value)); };
    for (const bool ticked : settings.holidayCells)
        flag(ticked);
    number(settings.overtime.minimumPercent);
    number(settings.overtime.nightMinimumPercent);
    number(settings.overtime.maximumPercent);
    number(settings.overtime.nightMaximumPercent);
    flag(settings.recordTicks);
    flag(settings.overtime.differentiatedPercent);
    flag(settings.overtime.mode == OvertimeMode::SingleLevel);
    flag(settings.overtime.totalsFormat == TotalsFormat::DecimalHours);
    number(settings.overtime.thresholdHours);
    number(settings.closingDay);
    flag(settings.fixedMonth);
    return lines;
}

/// `settings` put into a record that stands.
std::vector<std::string> encodeInto(std::vector<std::string> record,
                                    const MonthSettings& settings) {
    const std::vector<std::string> before = encode(decode(settings.month, record));
    const std::vector<std::string> after = encode(settings);
    for (std::size_t line = 0; line < after.size(); ++line) {
        if (line >= record.size())
            record.push_back(after[line]);
        else if (before[line] != after[line] || trimmed(record[line]).empty())
            record[line] = after[line];
    }
    return record;
}

RecordFile recordOf(FileSystem& files, const DataFolder& folder, WorkMonth month) {
    return {files, folder.file(monthRecordName(month))};
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
    for (int day = 0; day < daysIn(month); ++day) {
        const Date date = plusDays(firstDay(month), day);
        if (isHoliday(date)) dates.push_back(date);
    }
    return dates;
}

std::size_t holidayCellOf(Date date) {
    const unsigned blanksBefore = weekdayOf(firstDay(monthOf(date))).c_encoding();
    return blanksBefore + unsigned{date.day()} - 1;
}

std::string monthRecordName(WorkMonth month) {
    return monthKey(month) + "ds.rdx";
}

bool hasMonthSettings(FileSystem& files, const DataFolder& folder, WorkMonth month) {
    return recordOf(files, folder, month).exists();
}

MonthSettings loadMonthSettings(FileSystem& files, const DataFolder& folder, WorkMonth month) {
    return decode(month, recordOf(files, folder, month).lines());
}

void saveMonthSettings(FileSystem& files, const DataFolder& folder, const MonthSettings& settings) {
    RecordFile record = recordOf(files, folder, settings.month);
    record.rewrite(encodeInto(record.lines(), settings));
}

}  // namespace winvrx
