#pragma once

#include "foundation/desk/operator.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// Documents composed for the word processor: receipts, agreements, time sheets.
//
//   Document receipt{"Recibo", {Paragraph{"RECIBO DE PAGAMENTO", Paragraph::Side::Center, true,
//   14},
//                               DocumentTable{{120, 50}, {{{"SALARIO BASE"}, {"R$ 1.412,00"}}}}}};

namespace winvrx {

/// Text of one look, as UTF-8. Every blank counts, and "\n" begins a new line.
struct Paragraph {
    enum class Side { Left, Center, Right, Justified };

    std::string text = {};
    Side side = Side::Left;
    bool bold = false;
    int points = 11;
    bool startsPage = false;
    int below = 0;  ///< millimetres to what follows
};

/// Rows of as many cells as there are columns. A table longer than a page has its first row on
/// each.
struct DocumentTable {
    std::vector<int> columnWidths;  ///< millimetres, kTextWidth in all for the page's width
    std::vector<std::vector<Paragraph>> rows;
    bool gridLines = true;
};

/// Sheets of A4.
struct Document {
    std::string title;  ///< of the window and of the print job
    std::vector<std::variant<Paragraph, DocumentTable>> blocks;
};

/// Millimetres between the margins of a sheet.
inline constexpr int kTextWidth = 170;

inline constexpr std::string_view kDocumentSuffix = ".fodt";

/// No function waits until the document is seen or printed. Those that show or print throw Fault
/// with the reason when the word processor cannot be started.
class WordProcessor {
  public:
    virtual ~WordProcessor() = default;

    /// Opens the document in a window, where it can be changed and printed.
    virtual void show(const Document& document) = 0;
    /// On the default printer for an empty name. Throws Fault as well when there is no such
    /// printer.
    virtual void print(const Document& document, const std::string& printer) = 0;

    /// The document as the bytes of a file, to be kept and shown or printed by its name, which ends
    /// with kDocumentSuffix.
    [[nodiscard]] virtual std::string fileOf(const Document& document) const = 0;
    virtual void showFile(const std::filesystem::path& file) = 0;
    virtual void printFile(const std::filesystem::path& file, const std::string& printer) = 0;
};

/// "Não foi possível Imprimir! O Microsoft Word pode não estar Instalado neste PC.", what a command
/// says when its document is not printed.
[[nodiscard]] Message documentNotPrinted();

}  // namespace winvrx
