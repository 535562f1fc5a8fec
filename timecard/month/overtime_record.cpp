#include "timecard/month/overtime_record.h"

#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

std::optional<int> numberAt(std::size_t place, std::string_view lineBytes) {
    return parseWholeNumber(fieldOf(lineBytes, kOvertimeColumns[place]), 0, kHighestPercent);
}

RecordFile recordOf(const Store& store, const EmployeeKey& key) {
    return {store, key.company, overtimeFileName(key.employee)};
}

std::vector<std::string>::iterator lineOf(std::vector<std::string>& lines, WorkMonth month) {
    return std::find_if(lines.begin(), lines.end(), [month](const std::string& bytes) {
        const auto line = decodeOvertime(bytes);
        return line && line->month == month;
    });
}

}  // namespace

std::optional<OvertimeLine> decodeOvertime(std::string_view lineBytes) {
    const auto month = parseMonthKey(fieldOf(lineBytes, kOvertimeMonth));
    if (!month) return std::nullopt;
    OvertimeLine line{*month, {}};
    for (std::size_t place = 0; place < kPercents.size(); ++place) {
        const auto number = numberAt(place, lineBytes);
        if (!number) return std::nullopt;
        line.percents.*kPercents[place] = *number;
    }
    return line;
}

std::string encode(const OvertimeLine& line, std::string existing) {
    RecordLine record(std::move(existing), kOvertimeWidth);
    record.put(kOvertimeMonth, monthKey(line.month));
    for (std::size_t place = 0; place < kPercents.size(); ++place) {
        const int number = line.percents.*kPercents[place];
        if (numberAt(place, record.bytes()) != number)
            record.put(kOvertimeColumns[place], std::to_string(number));
    }
    return record.bytes();
}

std::string overtimeFileName(const EmployeeCode& employee) {
    return std::string(kOvertimeStem) + employee.text();
}

std::optional<OvertimePercents> loadOvertime(const Store& store, const EmployeeKey& key,
                                             WorkMonth month) {
    auto lines = recordOf(store, key).lines();
    const auto found = lineOf(lines, month);
    if (found == lines.end()) return std::nullopt;
    return decodeOvertime(*found)->percents;
}

OvertimeRules overtimeOf(const Store& store, const EmployeeKey& key, const MonthSettings& month) {
    OvertimeRules rules = month.overtime;
    OvertimePercents& percents = rules;
    percents = loadOvertime(store, key, month.month).value_or(percents);
    return rules;
}

std::optional<FileSystem::NewContent> withOvertime(const Store& store, const EmployeeKey& key,
                                                   const OvertimeLine& line) {
    const RecordFile record = recordOf(store, key);
    auto lines = record.lines();
    const auto found = lineOf(lines, line.month);
    if (found == lines.end())
        lines.push_back(encode(line));
    else if (decodeOvertime(*found) == line)
        return std::nullopt;
    else
        *found = encode(line, *found);
    return FileSystem::NewContent{record.path(), joinedLines(lines)};
}

void saveOvertime(const Store& store, const EmployeeKey& key, const OvertimeLine& line) {
    if (const auto content = withOvertime(store, key, line))
        store.files.replace(content->file, content->bytes);
}

}  // namespace winvrx
