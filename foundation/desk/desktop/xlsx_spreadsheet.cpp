#include "foundation/desk/desktop/xlsx_spreadsheet.h"

#include "foundation/values/faults.h"

#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <algorithm>

namespace winvrx {

namespace {

constexpr const char* kExplanation = "A planilha não pôde ser montada.";
constexpr std::size_t kWidestColumn = 50;  // characters

void require(lxw_error result) {
    if (result != LXW_NO_ERROR)
        throw Fault(std::string("libxlsxwriter: ") + lxw_strerror(result), kExplanation);
}

void writeTitles(lxw_worksheet& sheet, const Table& table, lxw_format& bold) {
    lxw_col_t column = 0;
    for (const std::string& title : table.titles)
        require(worksheet_write_string(&sheet, 0, column++, title.c_str(), &bold));
    worksheet_freeze_panes(&sheet, 1, 0);
}

void writeRows(lxw_worksheet& sheet, const Table& table) {
    lxw_row_t number = 1;
    for (const auto& row : table.rows) {
        lxw_col_t column = 0;
        for (const std::string& cell : row)
            require(worksheet_write_string(&sheet, number, column++, cell.c_str(), nullptr));
        ++number;
    }
}

void fitColumns(lxw_worksheet& sheet, const Table& table) {
    for (std::size_t i = 0; i < table.titles.size(); ++i) {
        std::size_t width = table.titles[i].size();
        for (const auto& row : table.rows)
            width = std::max(width, row[i].size());
        const auto column = static_cast<lxw_col_t>(i);
        require(worksheet_set_column(&sheet, column, column,
                                     static_cast<double>(std::min(width, kWidestColumn) + 2),
                                     nullptr));
    }
}

}  // namespace

std::string XlsxSpreadsheet::workbookOf(const Table& table, const std::string& sheetName) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("planilha.xlsx"));
    lxw_workbook* book = workbook_new(QFile::encodeName(path).constData());
    if (!book) throw Fault("libxlsxwriter: no workbook", kExplanation);
    try {
        lxw_worksheet* sheet = workbook_add_worksheet(book, sheetName.c_str());
        lxw_format* bold = workbook_add_format(book);
        if (!sheet || !bold) throw Fault("libxlsxwriter: no worksheet", kExplanation);
        format_set_bold(bold);
        writeTitles(*sheet, table, *bold);
        writeRows(*sheet, table);
        fitColumns(*sheet, table);
    } catch (...) {
        (void)workbook_close(book);
        throw;
    }
    require(workbook_close(book));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw Fault("workbook cannot be read back", kExplanation);
    return file.readAll().toStdString();
}

}  // namespace winvrx
