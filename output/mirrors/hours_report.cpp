#include "output/mirrors/hours_report.h"

#include "foundation/values/text.h"
#include "timecard/hours/hours_format.h"

#include <algorithm>
#include <iterator>

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

bool meets(const LeavePeriod& leave, const DayPeriod& period) {
    return leave.first <= period.last && leave.last >= period.first;
}

}  // namespace

std::vector<ReportedLeave> reportedLeaves(const MirrorSheet& sheet) {
    std::vector<ReportedLeave> leaves;
    for (const DatedLeave& one : sheet.leaves.leaves())
        if (meets(one.period, sheet.period)) leaves.push_back({wordOf(one.leave), one.period});
    for (const std::string& text : sheet.leaves.unread())
        leaves.push_back({text, std::nullopt});
    return leaves;
}

HoursReport::HoursReport(const DayPeriod& period, const OvertimeRules& rules)
    : rules_(rules),
      dayColumns_(dayColumns(rules)),
      summaryColumns_(summaryColumns(rules)),
      days_(withHours(kDetailColumns, dayColumns_)),
      summary_(withHours(kSummaryColumns, summaryColumns_)),
      leaves_(kLeaveColumns) {
    days_.addLine("            ARQUIVO DE PONTO                  ");
    days_.addLine("             Período: " + dateText(period.first) + " a " +
                  dateText(period.last));
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

}  // namespace winvrx
