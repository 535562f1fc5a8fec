#pragma once

#include "foundation/values/faults.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The engine that fills a layout file with the rows of the table `Tabela_base` and sends the pages
// to the preview window, a printer or a PDF file. What it prints is settled by the request: which
// layout, and which columns the table has.

namespace winvrx {

inline constexpr std::string_view kReportTable = "Tabela_base";

/// A row of the table: a text for each column of the request.
using ReportRow = std::vector<std::string>;
/// The table's content while one page is printed.
using ReportRows = std::vector<ReportRow>;

/// What one printer needs so that a millimetre on paper is a millimetre, measured from the paper's
/// top left corner: the print is first scaled, then moved.
struct PrintScale {
    int horizontalScale = 10000;  ///< hundredths of a percent
    int verticalScale = 10000;
    int horizontalOffset = 0;  ///< hundredths of a millimetre, positive to the right
    int verticalOffset = 0;    ///< positive down

    [[nodiscard]] bool operator==(const PrintScale&) const = default;
};

/// How the print is moved on the paper. The twips, 1/1440 inch, are the paper's, whatever the
/// scale.
struct Alignment {
    int horizontalTwips = 0;
    int verticalTwips = 0;
    int lines = 0;  ///< further rows to move down, each of the layout's row pitch
    PrintScale scale = {};

    [[nodiscard]] bool operator==(const Alignment&) const = default;
};

/// How printed sheets leave the printer. It settles how they go back into the tray for their second
/// side; see sheetsBackInstruction().
enum class SheetExit {
    FaceDown,  ///< "Impressa para baixo": the print is hidden
    FaceUp     ///< "Impressa para cima": the print is to be seen
};

/// What is printed of a layout with two sides.
enum class SheetSides {
    Both,  ///< one after the other, each on a page of its own
    First,
    Second
};

/// What the operator calls one page of a run.
struct PageNoun {
    std::string one = "folha";
    std::string many = "folhas";
};

enum class ReportOutput { Preview, Printer, PdfFile };

struct ReportRequest {
    std::string layoutName;                 ///< "tilibcenter.rpt"
    std::string title;                      ///< of the print job and the preview window
    std::vector<std::string> columns = {};  ///< of the table, in the order of a row's texts
    bool printHeader = true;                ///< whether blocks named "header" are drawn
    Alignment alignment = {};
    SheetSides sides = SheetSides::Both;
    SheetExit exit = SheetExit::FaceDown;
    PageNoun noun = {};
    ReportOutput output = ReportOutput::Preview;
    std::string printerName = {};           ///< empty: the default printer
    std::array<std::string, 3> trays = {};  ///< the first that is not blank names the source
    std::string pdfPath = {};               ///< of a preview: the name to propose
};

enum class PageOrder { Forwards, Backwards };

/// The pages of a run, pulled one after the other. A page's rows are made when its turn comes, so
/// that no more than one page is held in memory.
class ReportPages {
  public:
    /// `rowsOf` gives the rows of a page, counted from 0; what it throws comes out of next().
    ReportPages(std::size_t count, std::function<ReportRows(std::size_t)> rowsOf)
        : count_(count), rowsOf_(std::move(rowsOf)) {}

    [[nodiscard]] std::size_t count() const { return count_; }

    /// The rows of the next page; nullopt after the last one.
    [[nodiscard]] std::optional<ReportRows> next() {
        if (given_ == count_) return std::nullopt;
        const std::size_t at = given_++;
        return rowsOf_(order_ == PageOrder::Forwards ? at : count_ - 1 - at);
    }

    /// next() begins again, from the first page or backwards from the last.
    void restart(PageOrder order) {
        order_ = order;
        given_ = 0;
    }

  private:
    std::size_t count_;
    std::function<ReportRows(std::size_t)> rowsOf_;
    PageOrder order_ = PageOrder::Forwards;
    std::size_t given_ = 0;
};

/// Told after each page; false cancels the run.
using PageProgress = std::function<bool(int done, int total)>;

/// What became of a run.
enum class PrintEnd {
    Done,
    Cancelled,  ///< by the operator
    Failed      ///< the operator has been told why
};

/// What the engine cannot do anything about. Any other fault is one of this run: a damaged layout,
/// a full disk.
class ReportFault : public Fault {
  public:
    enum class Kind {
        NoEngine,    ///< the engine's own parts are not installed
        NoPrinter,   ///< no printer is installed
        PrinterGone  ///< the chosen printer, or a default one, is not there or does not answer
    };

    ReportFault(Kind kind, const std::string& what, std::string explanation)
        : Fault(what, std::move(explanation)), kind_(kind) {}

    [[nodiscard]] Kind kind() const { return kind_; }

  private:
    Kind kind_;
};

/// The engine as printPages() uses it. Every function throws a Fault when it fails, and lets the
/// faults of `pages` through.
class ReportEngine {
  public:
    virtual ~ReportEngine() = default;

    /// Sends the pages to the printer or into the PDF file. Done or Cancelled.
    [[nodiscard]] virtual PrintEnd print(const ReportRequest& request, ReportPages& pages,
                                         const PageProgress& progress) = 0;

    /// Prints the pages that a preview shows; never throws.
    using PrintShown = std::function<PrintEnd(ReportPages& shown, const PageProgress& progress)>;

    /// Shows the pages until the operator closes the window. `printShown` carries out the window's
    /// command "Imprimir"; when that fails the window closes, and the preview has failed too.
    [[nodiscard]] virtual PrintEnd preview(const ReportRequest& request, ReportPages& pages,
                                           const PageProgress& progress,
                                           const PrintShown& printShown) = 0;

    /// How many sides of the paper the layout fills, 1 or 2.
    [[nodiscard]] virtual int sidesOf(const ReportRequest& request) = 0;
};

}  // namespace winvrx
