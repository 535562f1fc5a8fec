#include "foundation/register/activity_report.h"

#include "foundation/desk/text_report.h"

namespace winvrx {

std::vector<std::string> activityReport(const std::vector<ReportedEmployee>& people, bool inactive,
                                        Date today) {
    std::vector<TextColumn> columns = {
        {" Nome do Funcionário", 34}, {" Função", 20}, {" Admissão ", 10}};
    if (inactive) columns.push_back({" Demissão ", 10});
    TextReport report(columns);
    report.addLine("(Usar Fonte: Courier New, Tamanho: 10)");
    report.addLine(std::string(" RELATÓRIO DE COLABORADORES ") +
                   (inactive ? "INATIVOS" : "ATIVOS") + " - " + dateText(today));
    report.addRule();
    report.addTitles();
    report.addRule();
    for (const ReportedEmployee& one : people) {
        if (one.inactiveSince.has_value() != inactive) continue;
        std::vector<std::string> cells = {one.name, one.function, one.admission};
        if (inactive) cells.push_back(dateText(*one.inactiveSince));
        report.addRow(cells);
    }
    report.addRule();
    return report.lines();
}

}  // namespace winvrx
