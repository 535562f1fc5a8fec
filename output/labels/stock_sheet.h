#pragma once

#include "foundation/register/company.h"
#include "report/report_pages.h"
#include "report/report_request.h"

#include <cstddef>
#include <string>

// The sheets of the stock control, "CONTROLE DE ESTOQUE": printed to be filled in by hand.

namespace winvrx {

enum class StockForm {
    Movement,  ///< entries and exits of one product, with the balance
    Count,     ///< what was counted of many products on each of a few days
};

struct StockChoices {
    StockForm form = StockForm::Movement;
    std::string subject = {};  ///< the product, or the place where is counted; may be empty
    std::size_t sheets = 1;
    ReportOutput output = ReportOutput::Preview;
};

/// The request of a run of such sheets.
[[nodiscard]] ReportRequest stockSheetRequest(const StockChoices& chosen);

/// The sheets, numbered.
[[nodiscard]] ReportPages stockSheets(const Company& company, const StockChoices& chosen);

}  // namespace winvrx
