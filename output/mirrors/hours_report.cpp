#include "output/mirrors/hours_report.h"

#include "foundation/values/text.h"
#include "output/mirrors/hour_columns.h"
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

std::vector<TextColumn> detailColumns(const OvertimeRules& rules) {
    return withHours(
        {{"Nome do Funcionário", 32}, {" Data", 11}, {"         HORARIO TRABALHADO", 35}},
        dayColumns(rules));
}

std::vector<TextColumn> summaryTextColumns(const OvertimeRules& rules) {
    return withHours({{" Nome do Funcionário", 31}, {" Função", 20}}, summaryColumns(rules));
}

const std::vector<TextColumn> kLeaveColumns = {{"Nome do Funcionário", 32},
                                               {" Descrição do Afastamento", 47},
                                               {"    Data de Início", 27},
                                               {"       Data de Término", 30}};

/// Right-aligned, with a blank before the rule where there is room.
std::string figure(std::chrono::seconds duration, const HourColumn& column,
                   const OvertimeRules& rules) {
    const std::string text = formatted(duration, rules.totalsFormat);
    return text.size() < column.width ? text + " " : text;
}

std::vector<std::string> withFigures(std::vector<std::string> cells, const HourTotals& totals,
                                     const std::vector<HourColumn>& columns,
                                     const OvertimeRules& rules) {
    for (const HourColumn& column : columns)
        cells.push_back(figure(column.of(totals), column, rules));
    return cells;
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
    : period_(period),
      rules_(rules),
      days_(detailColumns(rules)),
      summary_(summaryTextColumns(rules)),
      leaves_(kLeaveColumns) {
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
    const auto columns = dayColumns(rules_);
    const std::string& name = sheet.employee.name;
    for (const MirrorDay& day : sheet.days)
        days_.addRow(withFigures({name, " " + dashedLabel(day.date), workedTimes(day)}, day.hours,
                                 columns, rules_));
    summary_.addRow(
        withFigures({name, sheet.employee.function}, sheet.totals, summaryColumns(rules_), rules_));
    for (const ReportedLeave& leave : reportedLeaves(sheet)) {
        const auto day = [&leave](Date LeavePeriod::*which, std::size_t indent) {
            return std::string(indent, ' ') +
                   (leave.period ? dateText((*leave.period).*which) : "ilegível");
        };
        leaves_.addRow({name, " " + leave.description, day(&LeavePeriod::first, 4),
                        day(&LeavePeriod::last, 7)});
    }
}

std::vector<std::string> HoursReport::heading() const {
    return {"            ARQUIVO DE PONTO                  ",
            "             Período: " + dateText(period_.first) + " a " + dateText(period_.last),
            "            ================     ",
            "           (Usar Fonte: Courier New, Tamanho: 8 / Configurar Pagina: Paisagem)"};
}

std::vector<std::string> HoursReport::lines() const {
    std::vector<std::string> all = heading();
    const auto add = [&all](const std::vector<std::string>& lines) {
        all.emplace_back();
        all.insert(all.end(), lines.begin(), lines.end());
    };
    add(days_.lines());
    all.push_back(closingRule());
    add(summary_.lines());
    all.push_back(closingRule());
    add(leaves_.lines());
    all.push_back(closingRule());
    return all;
}

}  // namespace winvrx
