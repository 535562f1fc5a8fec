#include "foundation/desk/spreadsheet.h"

#include <utility>

namespace winvrx {

Sheet textSheet(std::string name, const Table& table) {
    Sheet sheet{.name = std::move(name), .columns = {}, .rows = {}};
    for (const std::string& title : table.titles)
        sheet.columns.push_back({title});
    for (const auto& row : table.rows)
        sheet.rows.emplace_back(row.begin(), row.end());
    return sheet;
}

}  // namespace winvrx
