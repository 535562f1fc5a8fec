#include "output/mirrors/hours_report.h"

#include "foundation/values/text.h"
#include "output/stocks/card_rows.h"
#include "timecard/hours/hours_format.h"
#include "timecard/hours/hours_summary.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <optional>

namespace winvrx {

namespace {

constexpr std::string_view kSummaryRule =
    "-------------------------------+--------------------+--------+---------+----------+"
    "-----------+-----------+-----------+--------+------------+";
constexpr std::size_t kClosingRule = 139;

TextColumn columnOf(const HourColumn& column) {
    return {fitted(column.title, column.width), column.width, TextColumn::Side::Right};
}

std::vector<TextColumn> withHours(std::vector<TextColumn> columns,
                                  const std::vector<HourColumn>& hours) {
    std::ranges::transform(hours, std::back_inserter(columns), columnOf);
    return columns;
}

const std::vector<TextColumn> kDetailColumns = {
    {"Nome do Funcionário", 32}, {" Data", 11}, {"         HORARIO TRABALHADO", 35}};

const std::vector<TextColumn> kSummaryColumns = {{" Nome do Funcionário", 31}, {" Função", 20}};

const std::vector<TextColumn> kLeaveColumns = {{"Nome do Funcionário", 32},
                                               {" Descrição do Afastamento", 47},
                                               {"    Data de Início", 27},
                                               {"       Data de Término", 30}};

/// Right-aligned, with a blank before the rule where there is room.
std::string figure(const HourTotals& totals, const HourColumn& column, TotalsFormat format) {
    std::string text = formatted(column.of(totals), format);
    if (text.size() < column.width) text += ' ';
    return text;
}

/// The last cells of a row.
void putFigures(std::vector<std::string>& cells, const HourTotals& totals,
                const std::vector<HourColumn>& columns, TotalsFormat format) {
    std::ranges::transform(columns, cells.end() - std::ssize(columns),
                           [&](const HourColumn& one) { return figure(totals, one, format); });
}

/// " 05-ter-mar".
std::string dashed(const std::string& dayLabel) {
    std::string text = " " + dayLabel;
    std::ranges::replace(text, '/', '-');
    return text;
}

std::string closingRule() {
    return std::string(kClosingRule, '-') + "|";
}

/// A leave that meets the period, or whose days cannot be read.
struct ReportedLeave {
    std::string description;
    std::optional<LeavePeriod> period;  ///< nullopt: cannot be read
};

std::vector<ReportedLeave> reportedLeaves(const MirrorSheet& sheet) {
    std::vector<ReportedLeave> leaves;
    for (const DatedLeave& one : sheet.leaves.leaves())
        if (one.period.overlaps({sheet.period.first, sheet.period.last}))
            leaves.push_back({wordOf(one.leave), one.period});
    for (const std::string& text : sheet.leaves.unread())
        leaves.push_back({text, std::nullopt});
    return leaves;
}

enum Place : std::size_t { Days, Summary, Leaves };

Sheet sheetOf(std::string name, std::initializer_list<const char*> titles,
              const std::vector<HourColumn>& hours, const OvertimeRules& rules) {
    Sheet sheet{.name = std::move(name), .columns = {}, .rows = {}};
    sheet.filtered = true;
    sheet.decimalHours = rules.totalsFormat == TotalsFormat::DecimalHours;
    for (const char* title : titles)
        sheet.columns.push_back({title});
    for (const HourColumn& column : hours)
        sheet.columns.push_back({std::string(trimmed(column.title)), true});
    return sheet;
}

/// A time that can be reckoned with; what is none stays text.
SheetCell timeCell(const std::string& text) {
    if (const auto time = parseTime(text)) return *time;
    return text;
}

void put(std::vector<SheetCell>& row, const HourTotals& totals,
         const std::vector<HourColumn>& columns) {
    for (const HourColumn& column : columns)
        row.emplace_back(column.of(totals));
}

std::string plainDecimal(std::chrono::seconds duration) {
    std::string text = decimalHours(duration, Decimals::Two);
    std::erase(text, '.');
    return text;
}

}  // namespace

HoursReport::HoursReport(const DayPeriod& period, const OvertimeRules& rules)
    : rules_(rules),
      dayColumns_(dayColumns(rules)),
      summaryColumns_(summaryColumns(rules)),
      days_(withHours(kDetailColumns, dayColumns_)),
      summary_(withHours(kSummaryColumns, summaryColumns_)),
      leaves_(kLeaveColumns) {
    days_.addLine("            ARQUIVO DE PONTO                  ");
    days_.addLine("             Período: " + periodText(period));
    days_.addLine("            ================     ");
    days_.addLine("           (Usar Fonte: Courier New, Tamanho: 8 / Configurar Pagina: Paisagem)");
    days_.addLine({});
    days_.addHeading("RELATÓRIO DE HORAS EXTRAS/FALTAS");
    days_.addRule();
    days_.addTitles();
    days_.addRule('|');
    summary_.addLine(std::string(40, ' ') + "RESUMO DAS HORAS");
    summary_.addLine(std::string(kSummaryRule));
    summary_.addTitles();
    summary_.addRule('|');
    leaves_.addHeading("RELATÓRIO DE AFASTAMENTO");
    leaves_.addRule('|');
    leaves_.addTitles();
    leaves_.addRule('|');
}

void HoursReport::add(const MirrorSheet& sheet) {
    const std::string& name = sheet.employee.name;
    std::vector<std::string> cells = {name, {}, {}};
    cells.resize(cells.size() + dayColumns_.size());
    for (const MirrorDay& day : sheet.days) {
        cells[1] = dashed(day.line.label);
        cells[2] = workedTimes(day);
        putFigures(cells, day.hours, dayColumns_, rules_.totalsFormat);
        days_.addRow(cells);
    }
    cells = {name, sheet.employee.function};
    cells.resize(cells.size() + summaryColumns_.size());
    putFigures(cells, sheet.totals, summaryColumns_, rules_.totalsFormat);
    summary_.addRow(cells);
    for (const ReportedLeave& leave : reportedLeaves(sheet)) {
        const auto day = [&leave](Date LeavePeriod::*which, std::size_t indent) {
            return std::string(indent, ' ') +
                   (leave.period ? dateText((*leave.period).*which) : "ilegível");
        };
        leaves_.addRow({name, " " + leave.description, day(&LeavePeriod::first, 4),
                        day(&LeavePeriod::last, 7)});
    }
}

std::vector<std::string> HoursReport::lines() && {
    std::vector<std::string> all = std::move(days_).lines();
    all.push_back(closingRule());
    for (const TextReport* block : {&summary_, &leaves_}) {
        all.emplace_back();
        all.insert(all.end(), block->lines().begin(), block->lines().end());
        all.push_back(closingRule());
    }
    return all;
}

HoursSheets::HoursSheets(const OvertimeRules& rules) : rules_(rules) {
    sheets_ = {sheetOf("Dias",
                       {"Nome do Funcionário", "Data", "Entr 1", "Saída 1", "Entr 2", "Saída 2",
                        "Entr 3", "Saída 3", "Situação"},
                       dayColumns(rules), rules),
               sheetOf("Resumo", {"Nome do Funcionário", "Função"}, summaryColumns(rules), rules),
               sheetOf("Afastamentos",
                       {"Nome do Funcionário", "Descrição do Afastamento", "Data de Início",
                        "Data de Término"},
                       {}, rules)};
}

void HoursSheets::add(const MirrorSheet& sheet) {
    const auto columns = dayColumns(rules_);
    const std::string& name = sheet.employee.name;
    for (const MirrorDay& day : sheet.days) {
        std::vector<SheetCell>& row = sheets_[Days].rows.emplace_back();
        row.reserve(sheets_[Days].columns.size());
        row.emplace_back(name);
        row.emplace_back(day.date);
        for (const auto member : kPunchTimes)
            row.push_back(timeCell(day.line.*member));
        row.emplace_back(day.situation);
        put(row, day.hours, columns);
    }
    put(sheets_[Summary].rows.emplace_back(std::vector<SheetCell>{name, sheet.employee.function}),
        sheet.totals, summaryColumns(rules_));
    for (const ReportedLeave& leave : reportedLeaves(sheet)) {
        const auto day = [&leave](Date LeavePeriod::*which) -> SheetCell {
            if (!leave.period) return std::string("ilegível");
            return (*leave.period).*which;
        };
        sheets_[Leaves].rows.push_back(
            {name, leave.description, day(&LeavePeriod::first), day(&LeavePeriod::last)});
    }
}

HoursCsv::HoursCsv(const OvertimeRules& rules) {
    std::vector<std::string>& titles = rows_.emplace_back();
    titles = {"Código", "Nome", "CPF"};
    for (const HourCategory category : kHourCategories)
        titles.push_back(captionOf(category, rules));
}

void HoursCsv::add(const MirrorSheet& sheet) {
    const Employee& employee = sheet.employee;
    std::vector<std::string>& row =
        rows_.emplace_back(std::vector<std::string>{employee.code, employee.name, employee.taxId});
    for (const HourCategory category : kHourCategories)
        row.push_back(plainDecimal(sheet.totals[category]));
}

}  // namespace winvrx
