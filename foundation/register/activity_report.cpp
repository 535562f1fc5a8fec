#include "foundation/register/activity_report.h"

#include "foundation/desk/text_report.h"

namespace winvrx {

namespace {

std::vector<TextColumn> columns(bool inactive) {
    std::vector<TextColumn> columns = {
        {" Nome do Funcionário", 34}, {" Função", 20}, {" Admissão ", 10}};
    if (inactive) columns.push_back({" Demissão ", 10});
    return columns;
}

std::vector<std::string> composed(const std::string& title, Date today,
                                  const std::vector<ReportedEmployee>& people, bool inactive) {
    TextReport report(columns(inactive));
    report.addLine("(Usar Fonte: Courier New, Tamanho: 10)");
    report.addLine(title + dateText(today));
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

}  // namespace

std::vector<std::string> activeReport(const std::vector<ReportedEmployee>& people, Date today) {
    return composed(" RELATÓRIO DE COLABORADORES ATIVOS - ", today, people, false);
}

std::vector<std::string> inactiveReport(const std::vector<ReportedEmployee>& people, Date today) {
    return composed(" RELATÓRIO DE COLABORADORES INATIVOS - ", today, people, true);
}

}  // namespace winvrx
