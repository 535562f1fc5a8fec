#pragma once

#include "foundation/desk/spreadsheet.h"

namespace winvrx {

/// Workbooks written by libxlsxwriter.
class XlsxSpreadsheet final : public Spreadsheet {
  public:
    [[nodiscard]] std::string workbookOf(const Table& table, const std::string& sheetName) override;
};

}  // namespace winvrx
