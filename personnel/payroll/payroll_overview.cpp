#include "personnel/payroll/payroll_overview.h"

#include "foundation/values/csv.h"
#include "personnel/payroll/contract_end.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::array kAmounts = {&OverviewPay::credits, &OverviewPay::debits, &OverviewPay::net,
                                 &OverviewPay::inss, &OverviewPay::fgts};

/// By the number of the lack.
constexpr std::array<std::string_view, 6> kLacks = {"Aberta",           "Sem cartão de ponto",
                                                    "Sem a 1º parcela", "Sem férias gravadas",
                                                    "Sem salário",      "Sem contrato no mês"};

std::string standingOf(const PayrollGlance& seen) {
    if (!seen.payroll || !seen.payroll->isRecorded) {
        const auto end =
            seen.payroll ? endBeside(seen.payroll->month, seen.payroll->inputs) : std::nullopt;
        if (end) return end->isActive ? "Aberta; rescisão gravada" : "Aberta; a rescisão paga";
        return std::string(kLacks.at(static_cast<std::size_t>(seen.lack)));
    }
    if (!hasMovedOn(*seen.payroll)) return "Gravada";
    if (!seen.payroll->now) return "Gravada; não se calcula mais";
    return "Gravada; mudou: hoje R$ " + moneyText(seen.payroll->now->net);
}

OverviewPay lineOf(const Folha& folha, const Employee& employee, const PayrollGlance& seen) {
    OverviewPay line{employee.code, employee.name, {}, {}, {}, {}, {}, standingOf(seen)};
    if (!seen.payroll) return line;
    const PaySheet& sheet = seen.payroll->sheet;
    const SheetDues dues =
        sheetDues(folha.law(), sheet, folha.month().month, seen.payroll->month.facts);
    line.credits = sheet.credits;
    line.debits = sheet.debits;
    line.net = sheet.net;
    line.inss = dues.employerInss.amount;
    line.fgts = dues.fgts.amount;
    return line;
}

std::vector<std::string> texts(const OverviewPay& line) {
    std::vector<std::string> cells = {line.code, line.name};
    for (const auto amount : kAmounts)
        cells.push_back(moneyText(line.*amount));
    cells.push_back(line.standing);
    return cells;
}

}  // namespace

Sheet PayrollOverview::sheet(const std::string& name) const {
    Sheet sheet{.name = name, .columns = {}, .rows = {}, .filtered = true};
    for (const std::string_view title : kOverviewTitles)
        sheet.columns.push_back({std::string(title)});
    for (std::size_t at = 0; at < kAmounts.size(); ++at)
        sheet.columns[at + 2].summed = true;
    for (const OverviewPay& line : people) {
        auto& row = sheet.rows.emplace_back(std::vector<SheetCell>{line.code, line.name});
        for (const auto amount : kAmounts)
            row.emplace_back(line.*amount);
        row.emplace_back(line.standing);
    }
    return sheet;
}

std::vector<std::vector<std::string>> PayrollOverview::table() const {
    std::vector<std::vector<std::string>> rows = {{kOverviewTitles.begin(), kOverviewTitles.end()}};
    std::ranges::transform(people, std::back_inserter(rows), texts);
    rows.push_back(texts(total));
    return rows;
}

bool FolhaVisao::load(const Folha::Progress& progress) {
    return attempt(at_, incorrectData(), [&] {
        const auto people = screen_.listed();
        const FolderNames names = namesIn(at_.store());
        PayrollOverview overview;
        overview.total.name = "TOTAL";
        for (const Employee& employee : people) {
            const OverviewPay& line = overview.people.emplace_back(
                lineOf(screen_.folha(), employee, screen_.folha().glance(employee, names)));
            for (const auto amount : kAmounts)
                overview.total.*amount = overview.total.*amount + line.*amount;
            if (progress && !progress(static_cast<int>(overview.people.size()),
                                      static_cast<int>(people.size())))
                return false;
        }
        shown_ = std::move(overview);
        return true;
    });
}

std::string FolhaVisao::name() const {
    return "Folha " + monthKey(screen_.folha().month().month);
}

bool FolhaVisao::exportWorkbook(const std::filesystem::path& file) const {
    return attempt(at_, incorrectData(), [&] {
        at_.files.replace(file, spreadsheet_.workbookOf({shown_.sheet(name())}));
    });
}

bool FolhaVisao::exportCsv(const std::filesystem::path& file) const {
    return attempt(at_, incorrectData(), [&] { at_.files.replace(file, csvText(shown_.table())); });
}

}  // namespace winvrx
