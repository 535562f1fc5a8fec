#include "output/labels/stock_sheet.h"

namespace winvrx {

namespace {

constexpr std::size_t kLines = 36;

}  // namespace

ReportRequest stockSheetRequest(StockForm form) {
    return {.layoutName = form == StockForm::Movement ? "estoquesa.rpt" : "estoquesb.rpt",
            .title = "CONTROLE DE ESTOQUE",
            .columns = {"razao", "cnpj", "assunto", "folha", "linha"}};
}

ReportPages stockSheets(const Company& company, const std::string& subject, std::size_t sheets) {
    return {sheets, [company, subject, sheets](std::size_t page) {
                ReportRows rows;
                const std::string number = std::to_string(page + 1) + "/" + std::to_string(sheets);
                for (std::size_t line = 1; line <= kLines; ++line)
                    rows.push_back(
                        {company.name, company.taxId, subject, number, std::to_string(line)});
                return rows;
            }};
}

}  // namespace winvrx
