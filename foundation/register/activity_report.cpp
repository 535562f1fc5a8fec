#include "foundation/register/activity_report.h"

#include "foundation/values/text.h"

#include <string_view>

namespace winvrx {

namespace {

constexpr std::string_view kFontAdvice = "(Usar Fonte: Courier New, Tamanho: 10)";

struct Layout {
    std::string_view title;
    std::string_view rule;
    std::string_view header;
};

constexpr Layout kActive{
    " RELATÓRIO DE COLABORADORES ATIVOS - ",
    "----------------------------------+--------------------+----------+",
    " Nome do Funcionário              | Função             | Admissão |",
};

constexpr Layout kInactive{
    " RELATÓRIO DE COLABORADORES INATIVOS - ",
    "----------------------------------+--------------------+----------+----------+",
    " Nome do Funcionário              | Função             | Admissão | Demissão |",
};

constexpr std::size_t kNameWidth = 34;
constexpr std::size_t kFunctionWidth = 20;
constexpr std::size_t kDateWidth = 10;

std::string lineOf(const ReportedEmployee& one) {
    std::string line = fitted(one.name, kNameWidth) + "|" + fitted(one.function, kFunctionWidth) +
                       "|" + fitted(one.admission, kDateWidth) + "|";
    if (one.inactiveSince) line += dateText(*one.inactiveSince) + "|";
    return line;
}

std::vector<std::string> composed(const Layout& layout, Date today,
                                  const std::vector<ReportedEmployee>& people, bool inactive) {
    const std::string rule(layout.rule);
    std::vector<std::string> lines = {std::string(kFontAdvice),
                                      std::string(layout.title) + dateText(today), rule,
                                      std::string(layout.header), rule};
    for (const ReportedEmployee& one : people)
        if (one.inactiveSince.has_value() == inactive) lines.push_back(lineOf(one));
    lines.push_back(rule);
    return lines;
}

}  // namespace

std::vector<std::string> activeReport(const std::vector<ReportedEmployee>& people, Date today) {
    return composed(kActive, today, people, false);
}

std::vector<std::string> inactiveReport(const std::vector<ReportedEmployee>& people, Date today) {
    return composed(kInactive, today, people, true);
}

}  // namespace winvrx
