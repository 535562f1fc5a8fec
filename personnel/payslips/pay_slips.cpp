#include "personnel/payslips/pay_slips.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::string_view kLayout = "contracheques.rpt";
constexpr std::string_view kTitle = "RECIBO DE PAGAMENTO DE SALÁRIO";
constexpr std::string_view kGoesOn = "continua no próximo recibo";

constexpr std::array<std::string_view, 9> kTexts = {
    "razao", "cnpj", "endereco_empresa", "mes", "codigo", "nome", "funcao", "admissao", "pis"};
constexpr std::array<std::string_view, 8> kTotals = {
    "creditos", "debitos", "liquido", "salario", "base_inss", "base_fgts", "fgts", "continua"};
/// Columns of an event, with its place on the slip behind them.
constexpr std::array<std::string_view, 5> kEvent = {"cod", "evento", "ref", "credito", "debito"};

std::vector<std::string> columns() {
    std::vector<std::string> names(kTexts.begin(), kTexts.end());
    names.insert(names.end(), kTotals.begin(), kTotals.end());
    for (std::size_t at = 1; at <= kSlipEvents; ++at)
        for (const std::string_view name : kEvent)
            names.push_back(std::string(name) + std::to_string(at));
    return names;
}

void addTotals(ReportRow& row, const PaperHeading& heading, const PaidEmployee& one) {
    const Money inssBase = std::min(one.sheet.base, heading.inssCeiling);
    for (const Money amount : {one.sheet.credits, one.sheet.debits, one.sheet.net})
        row.push_back(moneyText(amount));
    row.push_back(one.employee.salary);
    for (const Money amount : {inssBase, one.sheet.fgtsBase, one.dues.fgts.amount})
        row.push_back(moneyText(amount));
    row.emplace_back();
}

void addEvent(ReportRow& row, const PayLine& line) {
    const std::string amount = moneyText(line.amount);
    const bool isCredit = line.event.isEarning();
    row.insert(row.end(), {line.event.code, line.event.name,
                           line.event.reference == "000" ? "" : line.event.reference,
                           isCredit ? amount : "", isCredit ? "" : amount});
}

/// Totals stand on the last slip of who has several.
ReportRows slipsOf(const PaperHeading& heading, const PaidEmployee& one) {
    const Company& company = heading.company;
    const Employee& employee = one.employee;
    const auto lines = paidLines(one.sheet);
    const std::size_t count =
        std::max<std::size_t>((lines.size() + kSlipEvents - 1) / kSlipEvents, 1);
    ReportRows slips;
    for (std::size_t slip = 0; slip < count; ++slip) {
        ReportRow& row = slips.emplace_back(ReportRow{
            company.name, company.taxId, addressText(company), heading.period(), employee.code,
            employee.name, employee.function, employee.admission, employee.socialId});
        if (slip + 1 == count) {
            addTotals(row, heading, one);
        } else {
            row.resize(row.size() + kTotals.size() - 1);
            row.emplace_back(kGoesOn);
        }
        for (std::size_t at = slip * kSlipEvents;
             at < std::min(lines.size(), (slip + 1) * kSlipEvents); ++at)
            addEvent(row, *lines[at]);
        row.resize(columns().size());
    }
    return slips;
}

}  // namespace

ReportRequest paySlipRequest(const PaperHeading& heading) {
    return {.layoutName = std::string(kLayout),
            .title = std::string(kTitle),
            .columns = columns(),
            .pdfPath = "RECIBOS " + heading.company.name + " " + monthKey(heading.month) + ".pdf"};
}

std::vector<ReportRows> paySlipSheets(const PaperHeading& heading,
                                      std::span<const PaidEmployee> people) {
    std::vector<ReportRows> sheets;
    for (const PaidEmployee& one : people)
        for (ReportRow& slip : slipsOf(heading, one)) {
            if (sheets.empty() || sheets.back().size() == kSlipsOnASheet) sheets.emplace_back();
            sheets.back().push_back(std::move(slip));
        }
    return sheets;
}

}  // namespace winvrx
