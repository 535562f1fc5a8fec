#include "report/desktop/qt_report_engine.h"

#include "foundation/desk/log.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/progress.h"
#include "report/desktop/layout.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/layout_reader.h"
#include "report/desktop/page_spool.h"
#include "report/desktop/preview_window.h"
#include "report/desktop/report_device.h"
#include "report/desktop/report_table.h"

#include <QApplication>
#include <QSqlDatabase>

#include <algorithm>

namespace winvrx {

namespace {

template <typename Take>
PrintEnd forEachPage(const ReportRequest& request, ReportPages& pages, const PageProgress& progress,
                     Take take) {
    const int total = static_cast<int>(pages.count());
    for (int done = 1; auto rows = pages.next(); ++done) {
        for (ReportRow& row : *rows)
            row.resize(request.columns.size());
        take(*rows);
        if (!progress(done, total)) return PrintEnd::Cancelled;
    }
    return PrintEnd::Done;
}

std::vector<int> sidesToPrint(SheetSides asked, int sides) {
    std::vector<int> chosen;
    if (asked != SheetSides::Second) chosen.push_back(1);
    if (asked != SheetSides::First && sides > 1) chosen.push_back(2);
    return chosen;
}

bool isInstalled(const std::vector<std::filesystem::path>& layoutFolders) {
    const auto stands = [](const std::filesystem::path& folder) {
        std::error_code error;
        return std::filesystem::is_directory(folder, error);
    };
    return std::ranges::any_of(layoutFolders, stands) &&
           QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"));
}

ReportPages pagesOf(PageSpool& spool) {
    return {spool.size(), [&spool](std::size_t at) { return spool.at(at); }};
}

Progress::Words progressOf(const PreviewWindow& window, const PageNoun& noun) {
    QString page = toQt(noun.one);
    page.front() = page.front().toUpper();
    return {QStringLiteral("preview.progress"), window.windowTitle(),
            page + QStringLiteral(" %1 de %2")};
}

}  // namespace

std::vector<std::filesystem::path> layoutFolders(const std::filesystem::path& dataFolder,
                                                 const std::filesystem::path& programFolder) {
    return {dataFolder / "layouts", programFolder / "layouts",
            programFolder / ".." / "share" / "winvrx" / "layouts"};
}

QtReportEngine::QtReportEngine(Folders layoutFolders, Database database, Log& log)
    : layoutFolders_(std::move(layoutFolders)), database_(std::move(database)), log_(log) {}

Layout QtReportEngine::layoutOf(const ReportRequest& request) const {
    const auto folders = layoutFolders_();
    if (!isInstalled(folders))
        throw ReportFault(ReportFault::Kind::NoEngine, "no folder of layouts, or no SQLite driver",
                          "Faltam partes do programa. Instale-o novamente.");
    return loadLayout(folders, request.layoutName, request.columns);
}

int QtReportEngine::sidesOf(const ReportRequest& request) {
    return layoutOf(request).sides;
}

PrintEnd QtReportEngine::print(const ReportRequest& request, ReportPages& pages,
                               const PageProgress& progress) {
    const Layout layout = layoutOf(request);
    const auto device = openDevice(request, layout.page);
    ReportTable table(database_(), request.columns, drawnColumns(layout), log_);
    LayoutPainter painter(layout, {.header = request.printHeader, .alignment = request.alignment});
    const auto sides = sidesToPrint(request.sides, layout.sides);
    const PrintEnd end = forEachPage(request, pages, progress, [&](const ReportRows& rows) {
        const PageText text = table.exchange(rows);
        for (const int side : sides)
            painter.paint(device->nextPage(), text, side);
    });
    if (end == PrintEnd::Done) device->finish();
    return end;
}

PrintEnd QtReportEngine::preview(const ReportRequest& request, ReportPages& pages,
                                 const PageProgress& progress, const PrintShown& printShown) {
    const Layout layout = layoutOf(request);
    PageSpool spool;
    PrintEnd end = PrintEnd::Done;
    {
        ReportTable table(database_(), request.columns, drawnColumns(layout), log_);
        end = forEachPage(request, pages, progress, [&](const ReportRows& rows) {
            (void)table.exchange(rows);
            spool.append(rows);
        });
    }
    if (end != PrintEnd::Done || spool.size() == 0) return end;
    LayoutPainter painter(
        layout, {.header = request.printHeader, .stock = true, .alignment = request.alignment});
    PreviewWindow window(toQt(request.title), painter, spool, QApplication::activeWindow());
    window.proposePdf(toQt(request.pdfPath));
    QObject::connect(&window, &PreviewWindow::printRequested, &window,
                     [&] { end = printFrom(window, request, spool, printShown); });
    QObject::connect(&window, &PreviewWindow::pdfRequested, &window,
                     [&](const QString& path) { savePdf(window, request, spool, path); });
    window.exec();
    return end;
}

/// A print that the operator cancelled leaves the preview open.
PrintEnd QtReportEngine::printFrom(PreviewWindow& window, const ReportRequest& request,
                                   PageSpool& spool, const PrintShown& printShown) {
    Progress shown(progressOf(window, request.noun), &window);
    ReportPages pages = pagesOf(spool);
    const PrintEnd printed = printShown(pages, std::ref(shown));
    if (printed == PrintEnd::Failed) {
        window.accept();
        return printed;
    }
    const std::string sent = countOf(spool.size(), request.noun.one, request.noun.many);
    window.tell(printed == PrintEnd::Done ? toQt("Enviado à impressora: " + sent)
                                          : QStringLiteral("Impressão cancelada"));
    return PrintEnd::Done;
}

void QtReportEngine::savePdf(PreviewWindow& window, ReportRequest request, PageSpool& spool,
                             const QString& path) {
    request.output = ReportOutput::PdfFile;
    request.pdfPath = path.toStdString();
    Progress shown(progressOf(window, request.noun), &window);
    ReportPages pages = pagesOf(spool);
    try {
        const PrintEnd saved = print(request, pages, std::ref(shown));
        window.tell(saved == PrintEnd::Done ? QStringLiteral("Gravado em %1").arg(path)
                                            : QStringLiteral("Gravação cancelada"));
    } catch (const std::exception& fault) {
        log_.write(std::string("report: ") + fault.what());
        window.tell(QStringLiteral("⚠ Não foi possível gravar %1").arg(path));
    }
}

}  // namespace winvrx
