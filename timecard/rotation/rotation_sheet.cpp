#include "timecard/rotation/rotation_sheet.h"

#include "foundation/desk/text_report.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kOff = "==>  FOLGA  ==>";
constexpr std::string_view kReliefOff = "<== (Folguista)";
constexpr std::string_view kSignature = "_________________________________________";
constexpr std::string_view kInspected = "Visto Fiscal";
constexpr std::size_t kTeams = 3;
constexpr int kLongestMonth = 31;

std::vector<TextColumn> columnsOf(Scale scale) {
    if (scale == Scale::FiveByOne)
        return {{" Data     Dia ", 14},
                {"            FOLGUISTA         ", 30},
                {"             Escala de Folga", 68}};
    return {{" Equipes      ", 14},
            {"            1. Equipe de Trabalho        ", 41},
            {"            2. Equipe de Trabalho        ", 41},
            {"            3. Equipe de Trabalho        ", 41}};
}

/// " 05/03/24 ter".
std::string dateCell(const RotationView::Day& day) {
    const std::string date = dateText(day.date);
    return " " + date.substr(0, 6) + date.substr(8) + " " + day.weekday;
}

/// Who relieves; where nobody is off, the first relief worker who is there.
std::string reliefAtWork(const RotationView& view, std::size_t day) {
    const RotationView::Row* working = nullptr;
    for (const RotationView::Row& row : view.rows) {
        const Turn turn = row.cells[day].turn;
        if (!row.relief) continue;
        if (turn == Turn::Relief) return " " + row.name;
        if (turn == Turn::Work && !working) working = &row;
    }
    return working ? " " + working->name : std::string();
}

std::string offCell(const RotationView& view, std::size_t day) {
    std::string text;
    for (const RotationView::Row& row : view.rows) {
        if (row.cells[day].turn != Turn::Off) continue;
        text.append(" ").append(kOff).append(" ").append(row.name);
        if (row.relief) text.append(" ").append(kReliefOff);
    }
    return text;
}

std::vector<std::string> cellsOf(const RotationSheet& sheet, std::size_t day) {
    const RotationView& view = sheet.view;
    if (sheet.group.scale == Scale::FiveByOne)
        return {dateCell(view.days[day]), reliefAtWork(view, day), offCell(view, day)};
    std::vector<std::string> cells{dateCell(view.days[day])};
    for (std::size_t team = 0; team < kTeams; ++team) {
        if (team >= view.rows.size())
            cells.emplace_back();
        else if (view.rows[team].cells[day].turn == Turn::Off)
            cells.push_back(" " + std::string(kOff));
        else
            cells.push_back(" " + view.rows[team].name);
    }
    return cells;
}

std::string centred(std::string_view text, std::size_t width) {
    return std::string((width - characterCount(text)) / 2, ' ').append(text);
}

/// The report's lines with the box's left side.
std::vector<std::string> boxed(const TextReport& report) {
    std::vector<std::string> lines;
    for (const std::string& line : report.lines())
        lines.push_back((line.starts_with('-') ? "+" : "|") + line);
    return lines;
}

std::string groupLine(const RotationSheet& sheet) {
    return " Grupo: " + groupName(sheet.group.number) +
           "   Turno: " + std::string(codeOf(sheet.group.shift)) +
           "   Mês: " + monthTitle(sheet.month) + "   " + sheet.times;
}

/// "d1" … "d31" and the like: `letter` and the day.
void addDayColumns(std::vector<std::string>& columns, char letter) {
    for (int day = 1; day <= kLongestMonth; ++day)
        columns.push_back(letter + std::to_string(day));
}

template <typename Text>
void addDays(ReportRow& row, std::size_t days, Text textOf) {
    for (std::size_t day = 0; day < kLongestMonth; ++day)
        row.push_back(day < days ? textOf(day) : std::string());
}

}  // namespace

std::string sheetTitle(const RotationGroup& group) {
    return std::string("ESCALA DE REVEZAMENTO ").append(scaleTitle(group.scale));
}

std::vector<std::string> sheetLines(const RotationSheet& sheet) {
    const auto columns = columnsOf(sheet.group.scale);
    std::size_t width = columns.size() - 1;
    for (const TextColumn& column : columns)
        width += column.width;
    TextReport report(columns);
    report.addRule();
    report.addHeading(centred(sheetTitle(sheet.group), width));
    report.addHeading(" Empresa:" + sheet.company.name);
    report.addHeading(" Endereço: " + sheet.company.address);
    report.addHeading(groupLine(sheet));
    report.addRule();
    report.addTitles();
    report.addRule();
    for (std::size_t day = 0; day < sheet.view.days.size(); ++day)
        report.addRow(cellsOf(sheet, day));
    report.addRule();
    report.addHeading("");
    report.addHeading("");
    report.addHeading(centred(kSignature, width));
    report.addHeading(centred(kInspected, width));
    report.addRule();
    return boxed(report);
}

std::vector<std::string> sheetColumns() {
    std::vector<std::string> columns = {"titulo", "razao",   "endereco", "grupo", "turno",
                                        "mes",    "horario", "lacunas",  "nome",  "papel"};
    for (const char letter : {'d', 'w', 't', 'c'})
        addDayColumns(columns, letter);
    return columns;
}

ReportRows sheetRows(const RotationSheet& sheet) {
    const RotationView& view = sheet.view;
    ReportRows rows;
    for (const RotationView::Row& person : view.rows) {
        ReportRow row = {sheetTitle(sheet.group),
                         sheet.company.name,
                         sheet.company.address,
                         groupName(sheet.group.number),
                         std::string(codeOf(sheet.group.shift)),
                         monthTitle(sheet.month),
                         sheet.times,
                         view.gaps,
                         person.name,
                         person.relief ? "Folguista" : ""};
        const std::size_t days = view.days.size();
        addDays(row, days, [](std::size_t day) { return std::to_string(day + 1); });
        addDays(row, days, [&](std::size_t day) {
            return view.days[day].holiday ? "fer" : view.days[day].weekday;
        });
        addDays(row, days, [&](std::size_t day) { return person.cells[day].letter; });
        addDays(row, days,
                [&](std::size_t day) { return std::to_string(view.coverage[day].working); });
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace winvrx
