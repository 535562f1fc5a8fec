#include "timecard/rotation/work_table.h"

#include "foundation/files/record_names.h"
#include "timecard/schedule/schedule_hours.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

const TableRow kWholeDay = {"07:00", "12:00", "13:00", "17:00"};
const TableRow kShortDay = {"07:00", "12:00", "13:00", "16:00"};
const TableRow kSixthOfWeek = {"09:00", "12:00", "13:00", "17:20"};
constexpr std::size_t kFriday = 4;
constexpr std::size_t kWeekdays = 5;
constexpr std::size_t kWorkingRows = 6;

TableRow onePair(const char* entry, const char* exit) {
    return {entry, exit, "", ""};
}

TableRow standardRow(Shift shift, Scale scale) {
    if (scale == Scale::TwelveByThirtySix)
        return shift == Shift::Tres ? onePair("19:00", "07:00") : onePair("07:00", "19:00");
    switch (shift) {
        case Shift::Um:
            return onePair("06:00", "14:00");
        case Shift::Dois:
            return onePair("14:00", "22:00");
        case Shift::Tres:
            return onePair("22:00", "06:00");
        case Shift::Unico:
            break;
    }
    return scale == Scale::Normal ? kWholeDay : kSixthOfWeek;
}

constexpr Column timeColumn(std::size_t row, std::size_t cell) {
    return {kTableTimesStart + (row * kRowTimes + cell) * kTimeWidth, kTimeWidth};
}

/// Sunday is the last row.
std::size_t rowOf(std::chrono::weekday weekday) {
    return weekday.iso_encoding() - 1;
}

std::optional<std::string> findingIn(const TableRow& row) {
    for (const std::string& text : row)
        if (const std::string finding = typedTimeFinding(text); !finding.empty()) return finding;
    const DaySchedule day = timesOf(row);
    for (const TimePair& pair : {day.morning, day.afternoon})
        if (pair.entry.has_value() != pair.exit.has_value())
            return "Falta a entrada ou a saída de um par.";
    return std::nullopt;
}

bool isOf(std::string_view lineBytes, const WorkTable& table) {
    return parseShift(fieldOf(lineBytes, kTableShift)) == table.shift &&
           parseScale(fieldOf(lineBytes, kTableScale)) == table.scale;
}

RecordFile tableFile(const Store& store, const CompanyCode& company) {
    return {store, company, kWorkTableName};
}

}  // namespace

WorkTable standardTable(Shift shift, Scale scale) {
    WorkTable table{.shift = shift, .scale = scale, .rows = {}};
    const std::size_t step = scale == Scale::TwelveByThirtySix ? 2 : 1;
    const bool fiveDays = shift == Shift::Unico && scale == Scale::Normal;
    const std::size_t end = fiveDays ? kWeekdays : kWorkingRows;
    for (std::size_t row = 0; row < end; row += step)
        table.rows[row] = standardRow(shift, scale);
    if (fiveDays) table.rows[kFriday] = kShortDay;
    return table;
}

DaySchedule timesOf(const TableRow& row) {
    return {{parseTypedTime(row[0]), parseTypedTime(row[1])},
            {parseTypedTime(row[2]), parseTypedTime(row[3])}};
}

DaySchedule timesOn(const WorkTable& table, std::chrono::weekday weekday) {
    for (std::size_t back = 0; back < kTableRows; ++back) {
        const std::size_t row = (rowOf(weekday) + kTableRows - back) % kTableRows;
        if (const DaySchedule day = timesOf(table.rows[row]); day != DaySchedule()) return day;
    }
    return {};
}

std::chrono::seconds weeklyHours(const WorkTable& table) {
    std::chrono::seconds sum{0};
    for (const TableRow& row : table.rows)
        sum += lengthOf(timesOf(row));
    return sum;
}

std::optional<std::string> findingIn(const WorkTable& table) {
    for (std::size_t row = 0; row < kTableRows; ++row)
        if (const auto finding = findingIn(table.rows[row]))
            return std::string(kTableRowNames[row]) + ": " + *finding;
    if (table.scale == Scale::Normal) return std::nullopt;
    if (weeklyHours(table) == std::chrono::seconds(0)) return "O quadro não tem horas.";
    for (unsigned weekday = 2; weekday <= kWeekdays; ++weekday)
        if (timesOn(table, std::chrono::weekday(weekday)) != timesOn(table, std::chrono::Monday))
            return "No revezamento as horas de segunda a sexta são as mesmas: " +
                   std::string(kTableRowNames[weekday - 1]) + " difere de Segunda.";
    return std::nullopt;
}

std::string encode(const WorkTable& table, std::string existing) {
    const bool known = isOf(existing, table);
    RecordLine line(std::move(existing), kTableWidth);
    if (!known) {
        line.put(kTableShift, codeOf(table.shift));
        line.put(kTableScale, codeOf(table.scale));
    }
    for (std::size_t row = 0; row < kTableRows; ++row)
        for (std::size_t cell = 0; cell < kRowTimes; ++cell)
            line.put(timeColumn(row, cell), table.rows[row][cell]);
    return line.bytes();
}

std::optional<WorkTable> decodeTable(std::string_view lineBytes) {
    const auto shift = parseShift(fieldOf(lineBytes, kTableShift));
    const auto scale = parseScale(fieldOf(lineBytes, kTableScale));
    if (!shift || !scale) return std::nullopt;
    WorkTable table{.shift = *shift, .scale = *scale, .rows = {}};
    for (std::size_t row = 0; row < kTableRows; ++row)
        for (std::size_t cell = 0; cell < kRowTimes; ++cell)
            table.rows[row][cell] = fieldOf(lineBytes, timeColumn(row, cell));
    return table;
}

WorkTable loadTable(const Store& store, const CompanyCode& company, Shift shift, Scale scale) {
    WorkTable table = standardTable(shift, scale);
    for (const std::string& line : tableFile(store, company).lines())
        if (isOf(line, table)) return decodeTable(line).value_or(table);
    return table;
}

void saveTable(const Store& store, const CompanyCode& company, const WorkTable& table) {
    RecordFile file = tableFile(store, company);
    auto lines = file.lines();
    auto line = std::ranges::find_if(lines, [&](const auto& one) { return isOf(one, table); });
    if (line == lines.end()) line = lines.emplace(lines.end());
    *line = encode(table, std::move(*line));
    file.rewrite(lines);
}

}  // namespace winvrx
