#include "personnel/payslips/payroll_report.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::string_view kLayout = "folhapagamento.rpt";
constexpr std::string_view kTitle = "FOLHA DE PAGAMENTO";

/// A column of amounts: the events that it adds up.
struct AmountColumn {
    std::string_view name;
    std::array<std::string_view, 9> codes;
};
constexpr std::array kEarnings = {
    AmountColumn{"salario", {"001", "011", "014", "017", "019"}},
    AmountColumn{"adicionais", {"002", "003", "012", "013", "016", "018", "020", "033"}},
    AmountColumn{"extras", {"005", "006", "008", "009", "015", "021", "022"}},
    AmountColumn{"noturno", {"007"}}, AmountColumn{"dsr", {"010"}}};
constexpr std::array kDeductions = {AmountColumn{"inss", {"091", "093", "095"}},
                                    AmountColumn{"irrf", {"092", "094", "096"}},
                                    AmountColumn{"vale", {"025"}}, AmountColumn{"faltas", {"026"}},
                                    AmountColumn{"adiantamento", {"031", "032"}}};

constexpr std::array<std::string_view, 8> kTexts = {"razao",  "cnpj",  "mes",    "resumo",
                                                    "pagina", "total", "codigo", "nome"};

/// The amounts of an employee or, added up, of everyone.
using Amounts = std::vector<Money>;

void addSide(Amounts& amounts, const PaySheet& sheet, std::span<const AmountColumn> columns,
             Money total) {
    Money others = total;
    for (const AmountColumn& column : columns) {
        Money sum;
        for (const std::string_view code : column.codes)
            if (!code.empty()) sum = sum + sheet.amountOf(code);
        others = others - sum;
        amounts.push_back(sum);
    }
    amounts.push_back(others);
    amounts.push_back(total);
}

Amounts amountsOf(const PaidEmployee& one) {
    Amounts amounts;
    addSide(amounts, one.sheet, kEarnings, one.sheet.credits);
    addSide(amounts, one.sheet, kDeductions, one.sheet.debits);
    amounts.push_back(one.sheet.net);
    amounts.push_back(one.dues.fgts.amount);
    return amounts;
}

std::vector<std::string> columns() {
    std::vector<std::string> names(kTexts.begin(), kTexts.end());
    for (const AmountColumn& column : kEarnings)
        names.emplace_back(column.name);
    names.insert(names.end(), {"outros_creditos", "creditos"});
    for (const AmountColumn& column : kDeductions)
        names.emplace_back(column.name);
    names.insert(names.end(), {"outros_debitos", "debitos", "liquido", "fgts"});
    return names;
}

/// Blank for what nobody has to look at.
std::string shown(Money amount) {
    return amount.cents == 0 ? std::string() : moneyText(amount);
}

ReportRow rowOf(ReportRow same, const std::string& code, const std::string& name,
                const Amounts& amounts) {
    same.insert(same.end(), {code.empty() ? "TOTAL" : "", code, name});
    std::ranges::transform(amounts, std::back_inserter(same), shown);
    return same;
}

std::string summaryOf(std::span<const PaidEmployee> people, const Amounts& total) {
    const std::string count = std::to_string(people.size());
    return count + (people.size() == 1 ? " funcionário" : " funcionários") + " · Líquido R$ " +
           moneyText(total.at(total.size() - 2)) + " · FGTS R$ " + moneyText(total.back());
}

}  // namespace

ReportRequest payrollRequest(const PaperHeading& heading) {
    return {.layoutName = std::string(kLayout),
            .title = std::string(kTitle),
            .columns = columns(),
            .pdfPath = std::string(kTitle) + " " + heading.company.name + " " +
                       monthKey(heading.month) + ".pdf"};
}

std::vector<ReportRows> payrollSheets(const PaperHeading& heading,
                                      std::span<const PaidEmployee> people) {
    Amounts total(columns().size() - kTexts.size());
    for (const PaidEmployee& one : people)
        std::ranges::transform(total, amountsOf(one), total.begin(), std::plus<>());
    const std::size_t lines = people.size() + 1;
    const std::size_t count = (lines + kPayrollLines - 1) / kPayrollLines;
    std::vector<ReportRows> sheets(count);
    for (std::size_t at = 0; at < lines; ++at) {
        const std::size_t sheet = at / kPayrollLines;
        const ReportRow same = {heading.company.name, heading.company.taxId, heading.period(),
                                summaryOf(people, total),
                                std::to_string(sheet + 1) + " de " + std::to_string(count)};
        sheets[sheet].push_back(at < people.size()
                                    ? rowOf(same, people[at].employee.code,
                                            people[at].employee.name, amountsOf(people[at]))
                                    : rowOf(same, "", "TOTAL", total));
    }
    return sheets;
}

}  // namespace winvrx
