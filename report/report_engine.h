#pragma once

#include "foundation/values/faults.h"
#include "report/report_pages.h"
#include "report/report_request.h"

#include <functional>
#include <string>
#include <utility>

// The engine that fills a layout file with the rows of the table `Tabela_base` and sends the pages
// to the preview window, a printer or a PDF file. What it prints is settled by the request: which
// layout, and which columns the table has.

namespace winvrx {

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
