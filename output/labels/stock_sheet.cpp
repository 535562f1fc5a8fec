#include "output/labels/stock_sheet.h"

namespace winvrx {

namespace {

constexpr std::size_t kLines = 36;

}  // namespace

ReportRequest stockSheetRequest(const StockChoices& chosen) {
    return {.layoutName = chosen.form == StockForm::Movement ? "estoquesa.rpt" : "estoquesb.rpt",
            .title = "CONTROLE DE ESTOQUE",
            .columns = {"razao", "cnpj", "assunto", "folha", "linha"},
            .output = chosen.output};
}

ReportPages stockSheets(const Company& company, const StockChoices& chosen) {
    return {chosen.sheets, [company, chosen](std::size_t page) {
                ReportRows rows;
                const std::string number =
                    std::to_string(page + 1) + "/" + std::to_string(chosen.sheets);
                for (std::size_t line = 1; line <= kLines; ++line)
                    rows.push_back({company.name, company.taxId, chosen.subject, number,
                                    std::to_string(line)});
                return rows;
            }};
}

}  // namespace winvrx
