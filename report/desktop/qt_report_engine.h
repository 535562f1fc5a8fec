#pragma once

#include "report/report_engine.h"

#include <filesystem>
#include <functional>
#include <vector>

class QString;

namespace winvrx {

class Log;
class PageSpool;
class PreviewWindow;
struct Layout;

/// Where layouts are searched, first to last: a user's own in the data folder, then those shipped
/// with the program.
[[nodiscard]] std::vector<std::filesystem::path> layoutFolders(
    const std::filesystem::path& dataFolder, const std::filesystem::path& programFolder);

/// Prints through Qt: a preview window, a printer of the system, or a PDF file. Needs a
/// QApplication and is used from its thread.
class QtReportEngine final : public ReportEngine {
  public:
    using Folders = std::function<std::vector<std::filesystem::path>()>;
    using Database = std::function<std::filesystem::path()>;

    /// The folders of layouts and the path of the database are asked for at each run, since the
    /// operator may change the data folder.
    QtReportEngine(Folders layoutFolders, Database database, Log& log);

    [[nodiscard]] PrintEnd print(const ReportRequest& request, ReportPages& pages,
                                 const PageProgress& progress) override;
    [[nodiscard]] PrintEnd preview(const ReportRequest& request, ReportPages& pages,
                                   const PageProgress& progress,
                                   const PrintShown& printShown) override;
    [[nodiscard]] int sidesOf(const ReportRequest& request) override;

  private:
    /// Throws ReportFault where the engine is not installed, and LayoutFault.
    [[nodiscard]] Layout layoutOf(const ReportRequest& request) const;
    [[nodiscard]] PrintEnd printFrom(PreviewWindow& window, const ReportRequest& request,
                                     PageSpool& spool, const PrintShown& printShown);
    void savePdf(PreviewWindow& window, ReportRequest request, PageSpool& spool,
                 const QString& path);

    Folders layoutFolders_;
    Database database_;
    Log& log_;
};

}  // namespace winvrx
