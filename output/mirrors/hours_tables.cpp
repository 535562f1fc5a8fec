#include "output/mirrors/hours_tables.h"

#include "foundation/values/text.h"
#include "output/mirrors/hour_columns.h"
#include "output/mirrors/hours_report.h"
#include "timecard/hours/hours_summary.h"

#include <array>
#include <initializer_list>

namespace winvrx {

namespace {

enum Place : std::size_t { Days, Summary, Leaves };

constexpr std::array kTimes = {&PunchLine::morningEntry,   &PunchLine::morningExit,
                               &PunchLine::afternoonEntry, &PunchLine::afternoonExit,
                               &PunchLine::extraEntry,     &PunchLine::extraExit};

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
        for (const auto member : kTimes)
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
