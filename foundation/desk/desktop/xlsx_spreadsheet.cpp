#include "foundation/desk/desktop/xlsx_spreadsheet.h"

#include "foundation/values/faults.h"

#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr const char* kExplanation = "A planilha não pôde ser montada.";
constexpr std::size_t kWidestColumn = 50;  // characters
constexpr std::size_t kValueWidth = 10;    // of a date, the widest of what is no text
constexpr lxw_row_t kRowsBetween = 1000;   // two questions whether to go on

constexpr double kCents = 100;  // of a real
constexpr const char* kAmount = "#,##0.00";

/// The day that spreadsheets count as 0.
constexpr std::chrono::sys_days kDayZero{std::chrono::December / 30 / 1899};

using Days = std::chrono::duration<double, std::ratio<86400>>;
using Hours = std::chrono::duration<double, std::ratio<3600>>;

void require(lxw_error result) {
    if (result != LXW_NO_ERROR)
        throw Fault(std::string("libxlsxwriter: ") + lxw_strerror(result), kExplanation);
}

lxw_format& formatOf(lxw_workbook& book, const char* pattern, bool bold) {
    lxw_format* format = workbook_add_format(&book);
    if (!format) throw Fault("libxlsxwriter: no format", kExplanation);
    if (pattern) format_set_num_format(format, pattern);
    if (bold) format_set_bold(format);
    return *format;
}

/// How the cells of a sheet look.
struct Formats {
    Formats(lxw_workbook& book, bool decimalHours)
        : bold(formatOf(book, nullptr, true)),
          date(formatOf(book, "dd/mm/yyyy", false)),
          time(formatOf(book, "hh:mm", false)),
          duration(formatOf(book, durationPattern(decimalHours), false)),
          durationSum(formatOf(book, durationPattern(decimalHours), true)),
          money(formatOf(book, kAmount, false)),
          moneySum(formatOf(book, kAmount, true)) {}

    static const char* durationPattern(bool decimalHours) {
        return decimalHours ? kAmount : "[hh]:mm";
    }

    lxw_format& bold;
    lxw_format& date;
    lxw_format& time;
    lxw_format& duration;
    lxw_format& durationSum;
    lxw_format& money;
    lxw_format& moneySum;
};

class SheetWriter {
  public:
    SheetWriter(lxw_worksheet& to, const Sheet& sheet, const Formats& formats)
        : to_(to), sheet_(sheet), formats_(formats) {}

    /// False when it was not to go on.
    [[nodiscard]] bool write(const Spreadsheet::GoesOn& goesOn) {
        for (lxw_col_t at = 0; at < columns(); ++at)
            require(
                worksheet_write_string(&to_, 0, at, columnAt(at).title.c_str(), &formats_.bold));
        worksheet_freeze_panes(&to_, 1, 0);
        for (lxw_row_t at = 0; at < rows(); ++at) {
            if (at % kRowsBetween == 0 && goesOn && !goesOn()) return false;
            writeRow(at);
        }
        if (sheet_.filtered)
            require(
                worksheet_autofilter(&to_, 0, 0, rows(), static_cast<lxw_col_t>(columns() - 1)));
        for (lxw_col_t at = 0; at < columns(); ++at) {
            if (columnAt(at).summed && rows() > 0) writeSum(at);
            fit(at);
        }
        return true;
    }

  private:
    [[nodiscard]] lxw_col_t columns() const {
        return static_cast<lxw_col_t>(sheet_.columns.size());
    }
    [[nodiscard]] lxw_row_t rows() const { return static_cast<lxw_row_t>(sheet_.rows.size()); }
    [[nodiscard]] const SheetColumn& columnAt(lxw_col_t at) const { return sheet_.columns[at]; }

    [[nodiscard]] double numberOf(std::chrono::seconds duration) const {
        return sheet_.decimalHours ? Hours(duration).count() : Days(duration).count();
    }

    void writeRow(lxw_row_t at) {
        lxw_col_t column = 0;
        for (const SheetCell& cell : sheet_.rows[at])
            writeCell(at + 1, column++, cell);
    }

    void writeCell(lxw_row_t row, lxw_col_t column, const SheetCell& cell) {
        const auto number = [&](double value, lxw_format& format) {
            require(worksheet_write_number(&to_, row, column, value, &format));
        };
        if (const auto* text = std::get_if<std::string>(&cell)) {
            if (!text->empty())
                require(worksheet_write_string(&to_, row, column, text->c_str(), nullptr));
        } else if (const auto* date = std::get_if<Date>(&cell)) {
            number(Days(std::chrono::sys_days(*date) - kDayZero).count(), formats_.date);
        } else if (const auto* time = std::get_if<TimeOfDay>(&cell)) {
            number(Days(time->sinceMidnight).count(), formats_.time);
        } else if (const auto* money = std::get_if<Money>(&cell)) {
            number(static_cast<double>(money->cents) / kCents, formats_.money);
        } else {
            number(numberOf(std::get<std::chrono::seconds>(cell)), formats_.duration);
        }
    }

    /// With its value, for programs that do not reckon before they are asked.
    void writeSum(lxw_col_t column) {
        std::chrono::seconds sum{0};
        Money total;
        bool isMoney = false;
        for (const auto& row : sheet_.rows)
            if (const auto* duration = std::get_if<std::chrono::seconds>(&row[column])) {
                sum += *duration;
            } else if (const auto* money = std::get_if<Money>(&row[column])) {
                total.cents += money->cents;
                isMoney = true;
            }
        std::array<char, LXW_MAX_CELL_RANGE_LENGTH> range{};
        lxw_rowcol_to_range(range.data(), 1, column, rows(), column);
        // 109: the sum of what the filter shows.
        const std::string formula = "=SUBTOTAL(109," + std::string(range.data()) + ")";
        require(worksheet_write_formula_num(
            &to_, rows() + 1, column, formula.c_str(),
            isMoney ? &formats_.moneySum : &formats_.durationSum,
            isMoney ? static_cast<double>(total.cents) / kCents : numberOf(sum)));
    }

    void fit(lxw_col_t column) {
        std::size_t width = columnAt(column).title.size() + (sheet_.filtered ? 2 : 0);
        for (const auto& row : sheet_.rows) {
            const auto* text = std::get_if<std::string>(&row[column]);
            width = std::max(width, text ? text->size() : kValueWidth);
        }
        require(worksheet_set_column(&to_, column, column,
                                     static_cast<double>(std::min(width, kWidestColumn) + 2),
                                     nullptr));
    }

    lxw_worksheet& to_;
    const Sheet& sheet_;
    const Formats& formats_;
};

bool write(lxw_workbook& book, const Sheet& sheet, const Spreadsheet::GoesOn& goesOn) {
    lxw_worksheet* to = workbook_add_worksheet(&book, sheet.name.c_str());
    if (!to) throw Fault("libxlsxwriter: no worksheet", kExplanation);
    const Formats formats(book, sheet.decimalHours);
    return SheetWriter(*to, sheet, formats).write(goesOn);
}

}  // namespace

std::string XlsxSpreadsheet::workbookOf(const std::vector<Sheet>& sheets, const GoesOn& goesOn) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("planilha.xlsx"));
    lxw_workbook* book = workbook_new(QFile::encodeName(path).constData());
    if (!book) throw Fault("libxlsxwriter: no workbook", kExplanation);
    bool whole = true;
    try {
        whole = std::ranges::all_of(
            sheets, [&](const Sheet& sheet) { return write(*book, sheet, goesOn); });
    } catch (...) {
        lxw_workbook_free(book);
        throw;
    }
    if (!whole) {
        lxw_workbook_free(book);
        return {};
    }
    require(workbook_close(book));
    if (goesOn && !goesOn()) return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw Fault("workbook cannot be read back", kExplanation);
    return file.readAll().toStdString();
}

}  // namespace winvrx
