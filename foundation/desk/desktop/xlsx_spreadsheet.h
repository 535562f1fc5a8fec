#pragma once

#include "foundation/desk/spreadsheet.h"

namespace winvrx {

/// Workbooks written by libxlsxwriter.
class XlsxSpreadsheet final : public Spreadsheet {
  public:
    [[nodiscard]] std::string workbookOf(const std::vector<Sheet>& sheets,
                                         const GoesOn& goesOn) override;
};

}  // namespace winvrx
