#pragma once

#include "foundation/values/date.h"
#include "foundation/values/money.h"

#include <chrono>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace winvrx {

/// Rows of texts under titles, as UTF-8. Every row has as many cells as there are titles.
struct Table {
    std::vector<std::string> titles;
    std::vector<std::vector<std::string>> rows;

    [[nodiscard]] bool operator==(const Table&) const = default;
};

/// A text, or a value that a spreadsheet can sort and reckon with. An empty text is a blank cell.
using SheetCell = std::variant<std::string, Date, TimeOfDay, std::chrono::seconds, Money>;

struct SheetColumn {
    std::string title;
    bool summed =
        false;  ///< of durations or amounts: their sum stands below the last row, as a formula
};

/// One sheet of a workbook: titles that stay in sight above rows of one cell a column.
struct Sheet {
    std::string name;
    std::vector<SheetColumn> columns;
    std::vector<std::vector<SheetCell>> rows;
    bool filtered = false;      ///< the titles offer a filter, which the sums follow
    bool decimalHours = false;  ///< durations as "8,50", else as "08:30"
};

/// The table as a sheet of texts.
[[nodiscard]] Sheet textSheet(std::string name, const Table& table);

/// Writes workbooks.
class Spreadsheet {
  public:
    virtual ~Spreadsheet() = default;

    /// Asked now and then whether to go on.
    using GoesOn = std::function<bool()>;

    /// The bytes of an XLSX file; none once `goesOn` says no. Throws Fault.
    [[nodiscard]] virtual std::string workbookOf(const std::vector<Sheet>& sheets,
                                                 const GoesOn& goesOn = {}) = 0;
};

}  // namespace winvrx
