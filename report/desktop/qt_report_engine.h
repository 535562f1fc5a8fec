#pragma once

#include "report/desktop/card_text.h"
#include "report/report_engine.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace winvrx {

class Browser;
class CardSpool;
class LayoutPainter;
class Log;
class PreviewWindow;
class ReportDevice;
struct Layout;

/// Where layouts are searched, first to last: a user's own in the data folder, then those shipped
/// with the program.
[[nodiscard]] std::vector<std::filesystem::path> layoutFolders(
    const std::filesystem::path& dataFolder, const std::filesystem::path& programFolder);

/// Prints through Qt: a preview window, a printer of the system, or a PDF file. Needs a
/// QApplication and is used from its thread.
class QtReportEngine final : public ReportEngine {
  public:
    /// Asked at each run, since the operator may change the data folder.
    struct Places {
        std::function<std::vector<std::filesystem::path>()> layoutFolders;
        std::function<std::filesystem::path()> database;
    };

    /// `browser` shows the help page from the preview window.
    QtReportEngine(Places places, Browser& browser, Log& log);

    [[nodiscard]] ReportResult print(const ReportRequest& request, const CardSource& cards,
                                     const CardProgress& progress) override;
    [[nodiscard]] std::string explanation() const override { return explanation_; }
    [[nodiscard]] int sidesOf(const std::string& layoutName) override;

  private:
    using Pages = std::function<std::optional<CardText>()>;

    [[nodiscard]] ReportResult attempt(const std::function<ReportResult()>& run);
    [[nodiscard]] ReportResult run(const ReportRequest& request, const CardSource& cards,
                                   const CardProgress& progress);
    [[nodiscard]] ReportResult preview(const ReportRequest& request, const Layout& layout,
                                       const Pages& pages, const CardProgress& progress);
    [[nodiscard]] ReportResult printFrom(PreviewWindow& window, const ReportRequest& request,
                                         const Layout& layout, CardSpool& spool);
    void connectCommands(PreviewWindow& window, const ReportRequest& request, const Layout& layout,
                         CardSpool& spool, ReportResult& result);
    /// Prints or saves what is previewed, with progress once it takes a while.
    [[nodiscard]] ReportResult deliver(PreviewWindow& window, const ReportRequest& request,
                                       const Layout& layout, CardSpool& spool);
    [[nodiscard]] ReportResult printSpool(const ReportRequest& request, const Layout& layout,
                                          CardSpool& spool, const CardProgress& progress);

    Places places_;
    Browser& browser_;
    Log& log_;
    std::string explanation_;
};

}  // namespace winvrx
