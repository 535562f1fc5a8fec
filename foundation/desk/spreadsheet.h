#pragma once

#include <string>
#include <vector>

namespace winvrx {

/// Rows of texts under titles, as UTF-8. Every row has as many cells as there are titles.
struct Table {
    std::vector<std::string> titles;
    std::vector<std::vector<std::string>> rows;

    [[nodiscard]] bool operator==(const Table&) const = default;
};

/// Writes workbooks.
class Spreadsheet {
  public:
    virtual ~Spreadsheet() = default;

    /// The bytes of an XLSX file with one sheet; every cell is a text. Throws Fault.
    [[nodiscard]] virtual std::string workbookOf(const Table& table,
                                                 const std::string& sheetName) = 0;
};

}  // namespace winvrx
