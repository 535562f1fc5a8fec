#include "timecard/month/month_settings.h"

#include "foundation/values/text.h"

#include <array>
#include <type_traits>

namespace winvrx {

namespace {

constexpr std::string_view kRecordEnding = "ds.rdx";

/// What a line of the record behind the holiday cells holds, as text.
struct LineValue {
    std::string (*text)(const MonthSettings&);
    bool (*take)(MonthSettings&, std::string_view);
};

/// A member of the settings, or of their overtime rules.
template <auto Member>
auto& valueIn(auto& settings) {
    if constexpr (requires { settings.*Member; })
        return settings.*Member;
    else
        return settings.overtime.*Member;
}

/// A whole number, also that of a switch or a choice.
template <auto Member, int Lowest, int Highest>
constexpr LineValue wholeNumber() {
    return {[](const MonthSettings& settings) {
                return std::to_string(static_cast<int>(valueIn<Member>(settings)));
            },
            [](MonthSettings& settings, std::string_view text) {
                const auto number = parseWholeNumber(text, Lowest, Highest);
                auto& value = valueIn<Member>(settings);
                if (number) value = static_cast<std::remove_reference_t<decltype(value)>>(*number);
                return number.has_value();
            }};
}

template <auto Member>
constexpr LineValue kPercent = wholeNumber<Member, 0, kHighestPercent>();
template <auto Member>
constexpr LineValue kChoice = wholeNumber<Member, 0, 1>();

bool takeThreshold(MonthSettings& settings, std::string_view text) {
    const auto threshold = parseThreshold(text);
    if (threshold) settings.overtime.threshold = *threshold;
    return threshold.has_value();
}

/// In the order of MonthLine.
constexpr std::array kLineValues = {
    kPercent<&OvertimeRules::minimumPercent>,
    kPercent<&OvertimeRules::nightMinimumPercent>,
    kPercent<&OvertimeRules::maximumPercent>,
    kPercent<&OvertimeRules::nightMaximumPercent>,
    kChoice<&MonthSettings::recordTicks>,
    kChoice<&OvertimeRules::differentiatedPercent>,
    kChoice<&OvertimeRules::mode>,
    kChoice<&OvertimeRules::totalsFormat>,
    LineValue{[](const MonthSettings& of) { return thresholdText(of.overtime.threshold); },
              takeThreshold},
    wholeNumber<&MonthSettings::closingDay, 1, kHighestClosingDay>(),
    kChoice<&MonthSettings::fixedMonth>,
};
constexpr std::size_t kKnownLines = kHolidayCells + kLineValues.size();
static_assert(static_cast<std::size_t>(MonthLine::FixedMonth) == kKnownLines);

const LineValue& valueOf(std::size_t line) {
    return kLineValues.at(line - kHolidayCells - 1);
}

std::string lineText(const MonthSettings& settings, std::size_t line) {
    if (line <= kHolidayCells) return settings.holidayCells[line - 1] ? "1" : "0";
    return valueOf(line).text(settings);
}

/// False, and nothing taken, when the text is no value of a known line.
bool takeText(MonthSettings& settings, std::size_t line, std::string_view text) {
    if (line > kKnownLines) return false;
    if (line > kHolidayCells) return valueOf(line).take(settings, text);
    const auto ticked = parseWholeNumber(text, 0, 1);
    if (ticked) settings.holidayCells[line - 1] = *ticked == 1;
    return ticked.has_value();
}

MonthRecord decode(WorkMonth month, const std::vector<std::string>& lines) {
    MonthRecord record;
    record.settings.month = month;
    for (std::size_t line = 1; line <= lines.size(); ++line) {
        const std::string& bytes = lines[line - 1];
        if (!takeText(record.settings, line, bytes) && !trimmed(bytes).empty())
            record.unread.push_back({line, readableText(bytes)});
    }
    return record;
}

/// `settings` put into a record that stands.
std::vector<std::string> encodeInto(std::vector<std::string> record,
                                    const MonthSettings& settings) {
    const MonthSettings before = decode(settings.month, record).settings;
    if (record.size() < kKnownLines) record.resize(kKnownLines);
    for (std::size_t line = 1; line <= kKnownLines; ++line) {
        std::string& bytes = record[line - 1];
        std::string text = lineText(settings, line);
        if (trimmed(bytes).empty() || lineText(before, line) != text) bytes = std::move(text);
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
    std::vector<Date> dates = datesOf(month);
    std::erase_if(dates, [this](Date date) { return !isHoliday(date); });
    return dates;
}

std::string textOf(const MonthSettings& settings, MonthLine line) {
    return lineText(settings, static_cast<std::size_t>(line));
}

bool take(MonthSettings& settings, MonthLine line, std::string_view text) {
    return takeText(settings, static_cast<std::size_t>(line), text);
}

std::size_t holidayCellOf(Date date) {
    const unsigned blanksBefore = weekdayOf(firstDay(monthOf(date))).c_encoding();
    return blanksBefore + unsigned{date.day()} - 1;
}

std::string monthRecordName(WorkMonth month) {
    return monthKey(month).append(kRecordEnding);
}

std::optional<WorkMonth> lastRecordedBefore(const Store& store, WorkMonth month) {
    std::optional<WorkMonth> last;
    for (const std::string& name : store.files.names(store.folder.path())) {
        if (!name.ends_with(kRecordEnding)) continue;
        const auto one = parseMonthKey(name.substr(0, name.size() - kRecordEnding.size()));
        if (one && *one < month && (!last || *last < *one)) last = one;
    }
    return last;
}

std::optional<MonthRecord> findMonthRecord(const Store& store, WorkMonth month) {
    const auto lines = recordOf(store, month).linesIfAny();
    return lines ? std::optional(decode(month, *lines)) : std::nullopt;
}

MonthSettings loadMonthSettings(const Store& store, WorkMonth month) {
    return decode(month, recordOf(store, month).lines()).settings;
}

MonthRecord saveMonthSettings(const Store& store, const MonthSettings& settings) {
    RecordFile record = recordOf(store, settings.month);
    const auto lines = encodeInto(record.lines(), settings);
    record.rewrite(lines);
    return decode(settings.month, lines);
}

}  // namespace winvrx
