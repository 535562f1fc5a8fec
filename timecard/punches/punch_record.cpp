#include "timecard/punches/punch_record.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::array kTimes = {&PunchLine::morningEntry,   &PunchLine::morningExit,
                               &PunchLine::afternoonEntry, &PunchLine::afternoonExit,
                               &PunchLine::extraEntry,     &PunchLine::extraExit};

/// The word of a mark that the column cut; any other text as it stands.
std::string wholeSituation(std::string stored) {
    const Situation* found = findSituation(stored);
    return found && found->mark == stored ? std::string(found->word) : stored;
}

TimePair pairOf(std::string_view entry, std::string_view exit) {
    return {parseTypedTime(entry), parseTypedTime(exit)};
}

/// The lines of a record, told apart: the first line of each day of the month, and what is neither
/// that nor blank.
struct RecordContent {
    std::vector<PunchLine> days;
    std::vector<std::string> dayBytes;
    std::vector<std::string> others;
};

RecordContent contentOf(const std::vector<std::string>& lines, WorkMonth month) {
    RecordContent content{blankMonth(month), {}, {}};
    content.dayBytes.resize(content.days.size());
    std::vector<bool> seen(content.days.size(), false);
    for (const std::string& bytes : lines) {
        PunchLine line = decodePunchLine(bytes);
        const auto place = static_cast<std::size_t>(line.day()) - 1;
        if (place < seen.size() && !seen[place]) {
            seen[place] = true;
            content.days[place] = std::move(line);
            content.dayBytes[place] = bytes;
        } else if (!trimmed(bytes).empty()) {
            content.others.push_back(bytes);
        }
    }
    return content;
}

}  // namespace

int PunchLine::day() const {
    constexpr std::size_t kDigits = 2;
    const auto digits = std::string_view(label).substr(0, kDigits);
    const bool beginsWithDay = label.size() > kDigits && label[kDigits] == '/' && isDigits(digits);
    return beginsWithDay ? parseWholeNumber(digits, 0, 31).value_or(0) : 0;
}

TimePair PunchLine::morning() const {
    return pairOf(morningEntry, morningExit);
}
TimePair PunchLine::afternoon() const {
    return pairOf(afternoonEntry, afternoonExit);
}
TimePair PunchLine::extra() const {
    return pairOf(extraEntry, extraExit);
}

bool PunchLine::hasTimes() const {
    return std::ranges::any_of(kTimes, [this](auto time) { return !(this->*time).empty(); });
}

void PunchLine::clearTimes() {
    for (const auto time : kTimes)
        (this->*time).clear();
}

std::string encode(const PunchLine& line, std::string_view existing) {
    RecordLine record(std::string(existing.substr(0, kPunchWidth)), kPunchWidth);
    for (const PunchField& field : kPunchFields)
        record.put(field.column, line.*field.member);
    return record.bytes() + line.further;
}

PunchLine decodePunchLine(std::string_view lineBytes) {
    PunchLine line;
    for (const PunchField& field : kPunchFields)
        line.*field.member = fieldOf(lineBytes, field.column);
    line.situation = wholeSituation(std::move(line.situation));
    if (lineBytes.size() > kPunchWidth) line.further = lineBytes.substr(kPunchWidth);
    return line;
}

std::string punchFileName(const EmployeeKey& key, WorkMonth month) {
    return key.company.text() + key.employee.text() + "-" + monthKey(month) + ".bdx";
}

std::string closingFileName(const EmployeeKey& key, WorkMonth month) {
    return key.company.text() + key.employee.text() + "-" + monthKey(month) + ".prd";
}

std::vector<PunchLine> blankMonth(WorkMonth month) {
    std::vector<PunchLine> lines;
    for (const Date date : datesOf(month))
        lines.emplace_back().label = dayLabel(date);
    return lines;
}

std::optional<PunchRecord> findPunchRecord(const Store& store, const EmployeeKey& key,
                                           WorkMonth month) {
    const auto lines = RecordFile(store, punchFileName(key, month)).linesIfAny();
    if (!lines) return std::nullopt;
    RecordContent content = contentOf(*lines, month);
    for (std::string& line : content.others)
        line = readableText(line);
    return PunchRecord{std::move(content.days), std::move(content.others)};
}

std::optional<PunchLines> loadPunches(const Store& store, const EmployeeKey& key, WorkMonth month) {
    auto record = findPunchRecord(store, key, month);
    return record ? std::optional(std::move(record->days)) : std::nullopt;
}

std::string punchRecordBytes(const std::vector<PunchLine>& lines) {
    std::vector<std::string> encoded{std::string(kOpeningPunchLine)};
    for (const PunchLine& line : lines)
        encoded.push_back(encode(line));
    return joinedLines(encoded);
}

std::string editedPunchRecord(std::string_view record, WorkMonth month,
                              const std::vector<PunchLine>& lines) {
    const RecordContent before = contentOf(splitLines(record), month);
    std::vector<std::string> encoded{std::string(kOpeningPunchLine)};
    for (std::size_t i = 0; i < lines.size(); ++i)
        encoded.push_back(
            encode(lines[i], i < before.dayBytes.size() ? before.dayBytes[i] : std::string()));
    encoded.insert(encoded.end(), before.others.begin(), before.others.end());
    return joinedLines(encoded);
}

std::vector<std::string> dayLines(const std::vector<std::string>& recordLines, WorkMonth month) {
    RecordContent content = contentOf(recordLines, month);
    for (std::size_t i = 0; i < content.days.size(); ++i)
        if (content.dayBytes[i].empty()) content.dayBytes[i] = encode(content.days[i]);
    return std::move(content.dayBytes);
}

}  // namespace winvrx
