#include "personnel/payroll/statement_page.h"

#include "foundation/register/company_register.h"
#include "report/printers.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

struct LineColumn {
    std::string_view name;
    std::string StatementLine::*member;
};

/// Beside those of the sheet.
constexpr std::array kLineColumns = {LineColumn{"grupo", &StatementLine::heading},
                                     LineColumn{"linha", &StatementLine::words},
                                     LineColumn{"quantidade", &StatementLine::quantity},
                                     LineColumn{"credito", &StatementLine::credit},
                                     LineColumn{"desconto", &StatementLine::debit},
                                     LineColumn{"total", &StatementLine::total},
                                     LineColumn{"memoria", &StatementLine::memo}};

std::vector<std::string> columnNames() {
    std::vector<std::string> names = {
        "titulo", "razao", "cnpj", "sobre", "folha", "titulo_creditos", "titulo_descontos"};
    for (const LineColumn& column : kLineColumns)
        names.emplace_back(column.name);
    return names;
}

ReportRows sheetOf(const Statement& statement, const Company& company, std::size_t sheet,
                   std::size_t sheets) {
    const std::size_t first = sheet * kLinesOnAStatement;
    const std::size_t last = std::min(first + kLinesOnAStatement, statement.lines.size());
    ReportRows rows;
    for (std::size_t at = first; at < last; ++at) {
        ReportRow row = {statement.title,
                         company.name,
                         company.taxId,
                         statement.about,
                         std::to_string(sheet + 1) + " de " + std::to_string(sheets),
                         statement.creditHeading,
                         statement.debitHeading};
        for (const LineColumn& column : kLineColumns)
            row.push_back(statement.lines[at].*column.member);
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace

void Statement::addHeading(std::string text) {
    if (!lines.empty()) lines.push_back({});
    lines.push_back({.heading = std::move(text)});
}

void Statement::addTotal(std::string heading, Money amount) {
    lines.push_back({.heading = std::move(heading), .total = moneyText(amount)});
}

void Statement::addMemo(const Memo& memo) {
    for (const MemoLine& line : memo)
        lines.push_back({.memo = memoText(line)});
}

bool previewStatement(const PrintDesk& desk, const Statement& statement) {
    const Workplace& at = desk.at;
    return attempt(at, incorrectData(), [&] {
        const Company company =
            findCompany(at.store(), at.session.company.value()).value_or(Company());
        const std::size_t sheets =
            (statement.lines.size() + kLinesOnAStatement - 1) / kLinesOnAStatement;
        ReportPages pages(
            sheets, [&](std::size_t sheet) { return sheetOf(statement, company, sheet, sheets); });
        const ReportRequest request{.layoutName = std::string(kStatementLayout),
                                    .title = statement.title,
                                    .columns = columnNames(),
                                    .output = ReportOutput::Preview,
                                    .printerName = loadPrinterName(at.store()),
                                    .pdfPath = statement.fileName};
        return printPages(desk, request, pages) == PrintEnd::Done;
    });
}

}  // namespace winvrx
