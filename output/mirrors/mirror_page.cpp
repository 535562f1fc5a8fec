#include "output/mirrors/mirror_page.h"

#include "foundation/values/text.h"
#include "output/mirrors/hour_columns.h"
#include "output/stocks/card_rows.h"
#include "timecard/punches/situation.h"
#include "timecard/schedule/schedule_words.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::size_t kNotes = 12;
constexpr std::size_t kHours = 7;

/// Words of company, employee and schedule, which every row has.
constexpr std::array<std::string_view, 14> kHeader = {
    "razao", "cnpj",     "empresa_endereco", "codigo",   "nome",    "cpf",      "pis",
    "ctps",  "registro", "funcao",           "admissao", "periodo", "descanso", "jornada"};

constexpr std::array<std::string_view, 9> kDay = {"dia",  "contrato", "ent1", "sai1",    "ent2",
                                                  "sai2", "ent3",     "sai3", "situacao"};

void addNumbered(std::vector<std::string>& names, const char* stem, std::size_t count) {
    for (std::size_t number = 1; number <= count; ++number)
        names.push_back(stem + std::to_string(number));
}

/// Normal by day and by night, extra of each rate, missing.
std::vector<HourColumn> hourColumns(const OvertimeRules& rules) {
    auto columns = summaryColumns(rules);
    std::rotate(columns.begin(), columns.end() - 1, columns.end());
    columns.erase(columns.begin() + 1);  // the standard hours, a month's figure
    std::rotate(columns.begin() + 1, columns.begin() + 3, columns.begin() + 4);
    return columns;
}

std::string workingTimes(const MirrorSheet& sheet) {
    MergeWords words;
    putSchedule(words, sheet.schedule ? sheet.schedule->weekday : DaySchedule());
    return words.at("horario");
}

ReportRow headerCells(const Company& company, const MirrorSheet& sheet,
                      const std::vector<HourColumn>& columns) {
    MergeWords words = mergeWords(company, sheet.employee);
    words.put("empresa_endereco", addressText(company));
    words.put("periodo", periodText(sheet.period));
    words.put("jornada", workingTimes(sheet));
    ReportRow cells;
    for (const std::string_view name : kHeader)
        cells.push_back(words.at(name));
    for (const HourColumn& column : columns)
        cells.emplace_back(trimmed(column.title));
    return cells;
}

/// As many as there is room for; the last says how many more there are.
std::vector<std::string> notesOf(const MirrorSheet& sheet) {
    std::vector<std::string> notes = mirrorNotes(sheet);
    if (notes.size() > kNotes) {
        const std::size_t more = notes.size() - kNotes + 1;
        notes[kNotes - 1] = "... e mais " + std::to_string(more) + " no espelho em texto";
    }
    notes.resize(kNotes);
    return notes;
}

/// Worked, then the columns of hours.
template <typename Shown>
void addHours(ReportRow& row, const HourTotals& hours, const std::vector<HourColumn>& columns,
              Shown shown) {
    row.push_back(shown(hours.worked()));
    for (const HourColumn& column : columns)
        row.push_back(shown(column.of(hours)));
}

std::string timesText(const DaySchedule& day) {
    const std::array times = {day.morning.entry, day.morning.exit, day.afternoon.entry,
                              day.afternoon.exit};
    return joined(times, " ",
                  [](const auto& time) { return time ? timeText(*time) : std::string(); });
}

ReportRow dayCells(const MirrorDay& day) {
    ReportRow cells = {day.line.label, timesText(day.contracted)};
    for (const auto time : kPunchTimes)
        cells.push_back(day.line.*time);
    cells.push_back(day.situation);
    return cells;
}

ReportRow blankDayCells(const MirrorDay& day) {
    ReportRow cells(kDay.size());
    cells[0] = day.line.label;
    cells[1] = timesText(day.contracted);
    if (meaningOf(day.situation) != DayMeaning::Missing) cells.back() = day.situation;
    return cells;
}

void append(ReportRow& row, const ReportRow& cells) {
    row.insert(row.end(), cells.begin(), cells.end());
}

}  // namespace

const std::vector<std::string>& mirrorColumns() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all(kHeader.begin(), kHeader.end());
        addNumbered(all, "titulo", kHours);
        all.emplace_back("total0");
        addNumbered(all, "total", kHours);
        addNumbered(all, "nota", kNotes);
        all.insert(all.end(), kDay.begin(), kDay.end());
        all.emplace_back("hora0");
        addNumbered(all, "hora", kHours);
        return all;
    }();
    return names;
}

std::vector<DayPeriod> mirrorPages(const DayPeriod& period) {
    if (plusDays(period.first, kMirrorLines) > period.last) return {period};
    std::vector<DayPeriod> pages;
    for (Date first = period.first; first <= period.last; first = plusDays(pages.back().last, 1))
        pages.push_back({first, std::min(lastDay(monthOf(first)), period.last)});
    return pages;
}

ReportRows mirrorRows(const Company& company, const MirrorSheet& sheet) {
    const std::vector<HourColumn> columns = hourColumns(sheet.overtime);
    const TotalsFormat format = sheet.overtime.totalsFormat;
    ReportRow same = headerCells(company, sheet, columns);
    addHours(same, sheet.totals, columns, [=](auto sum) { return formatted(sum, format); });
    append(same, notesOf(sheet));
    ReportRows rows;
    for (const MirrorDay& day : sheet.days) {
        ReportRow& row = rows.emplace_back(same);
        append(row, dayCells(day));
        addHours(row, day.hours, columns, [=](auto length) {
            return length.count() == 0 ? std::string() : formatted(length, format);
        });
    }
    return rows;
}

ReportRows manualRows(const Company& company, const MirrorSheet& sheet) {
    ReportRow same = headerCells(company, sheet, hourColumns(sheet.overtime));
    same.resize(same.size() + 1 + kHours + kNotes);
    ReportRows rows;
    for (const MirrorDay& day : sheet.days) {
        ReportRow& row = rows.emplace_back(same);
        append(row, blankDayCells(day));
        row.resize(mirrorColumns().size());
    }
    return rows;
}

}  // namespace winvrx
