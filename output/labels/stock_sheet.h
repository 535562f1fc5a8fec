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

/// The request of a run of such sheets, without where they go.
[[nodiscard]] ReportRequest stockSheetRequest(StockForm form);

/// So many sheets, numbered, all for the same product or place; `subject` may be empty.
[[nodiscard]] ReportPages stockSheets(const Company& company, const std::string& subject,
                                      std::size_t sheets);

}  // namespace winvrx
