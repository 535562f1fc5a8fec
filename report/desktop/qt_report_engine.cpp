#include "report/desktop/qt_report_engine.h"

#include "foundation/desk/browser.h"
#include "foundation/desk/log.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/progress.h"
#include "report/desktop/card_spool.h"
#include "report/desktop/card_table.h"
#include "report/desktop/layout.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/preview_window.h"
#include "report/desktop/report_device.h"

#include <QApplication>
#include <QSqlDatabase>

#include <algorithm>
#include <exception>

namespace winvrx {

namespace {

/// Carries a fault of the caller's functions past the engine's own catch-all.
struct CallerFault {
    std::exception_ptr cause;
};

template <typename Call>
auto callBack(Call&& call) {
    try {
        return call();
    } catch (...) {
        throw CallerFault{std::current_exception()};
    }
}

template <typename Place>
ReportResult forEachPage(const std::function<std::optional<CardText>()>& pages,
                         const CardProgress& progress, Place place) {
    int done = 0;
    while (const auto rows = pages()) {
        place(*rows);
        ++done;
        if (!callBack([&] { return progress(done); })) return ReportResult::Cancelled;
    }
    return ReportResult::Done;
}

std::vector<int> sidesToPrint(CardSide asked, int sides) {
    std::vector<int> chosen;
    if (asked != CardSide::Second) chosen.push_back(1);
    if (asked != CardSide::First && sides > 1) chosen.push_back(2);
    return chosen;
}

ReportResult printPages(const ReportRequest& request, const Layout& layout,
                        const std::function<std::optional<CardText>()>& pages,
                        const CardProgress& progress) {
    if (request.output == ReportOutput::Printer && !hasPrinters()) return ReportResult::NoPrinter;
    const auto device = openDevice(request, layout.page);
    LayoutPainter painter(layout, {.header = request.printHeader, .alignment = request.alignment});
    const auto sides = sidesToPrint(request.side, layout.sides);
    const ReportResult result = forEachPage(pages, progress, [&](const CardText& rows) {
        for (const int side : sides)
            painter.paint(device->nextPage(), rows, side);
    });
    if (result == ReportResult::Done) device->finish();
    return result;
}

bool isInstalled(const std::vector<std::filesystem::path>& layoutFolders) {
    const auto stands = [](const std::filesystem::path& folder) {
        std::error_code error;
        return std::filesystem::is_directory(folder, error);
    };
    return std::ranges::any_of(layoutFolders, stands) &&
           QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"));
}

QString sentence(qsizetype count) {
    return count == 1 ? QStringLiteral("1 cartão enviado à impressora")
                      : QStringLiteral("%1 cartões enviados à impressora").arg(count);
}

}  // namespace

std::vector<std::filesystem::path> layoutFolders(const std::filesystem::path& dataFolder,
                                                 const std::filesystem::path& programFolder) {
    return {dataFolder / "layouts", programFolder / "layouts",
            programFolder / ".." / "share" / "winvrx" / "layouts"};
}

QtReportEngine::QtReportEngine(Places places, Browser& browser, Log& log)
    : places_(std::move(places)), browser_(browser), log_(log) {}

ReportResult QtReportEngine::print(const ReportRequest& request, const CardSource& cards,
                                   const CardProgress& progress) {
    try {
        return attempt([&] { return run(request, cards, progress); });
    } catch (const CallerFault& fault) {
        std::rethrow_exception(fault.cause);
    }
}

int QtReportEngine::sidesOf(const std::string& layoutName) {
    try {
        return loadLayout(places_.layoutFolders(), layoutName).sides;
    } catch (const LayoutFault&) {
        return 1;
    }
}

ReportResult QtReportEngine::attempt(const std::function<ReportResult()>& run) {
    const auto failed = [this](const std::exception& fault, ReportResult result) {
        log_.write(std::string("report: ") + fault.what());
        explanation_ = explanationOf(fault);
        return result;
    };
    try {
        return run();
    } catch (const PrinterFault& fault) {
        return failed(fault, ReportResult::PrinterGone);
    } catch (const std::exception& fault) {
        return failed(fault, ReportResult::Failed);
    }
}

ReportResult QtReportEngine::run(const ReportRequest& request, const CardSource& cards,
                                 const CardProgress& progress) {
    const auto folders = places_.layoutFolders();
    if (!isInstalled(folders)) {
        log_.write("report: no folder of layouts, or no SQLite driver");
        explanation_ = "Faltam partes do programa. Instale-o novamente.";
        return ReportResult::NoEngine;
    }
    const Layout layout = loadLayout(folders, request.layoutName);
    CardTable table(places_.database(), drawnColumns(layout));
    const Pages pages = [&]() -> std::optional<CardText> {
        const auto rows = callBack(cards);
        return rows ? std::optional(table.exchange(*rows)) : std::nullopt;
    };
    if (request.output == ReportOutput::Preview) return preview(request, layout, pages, progress);
    return printPages(request, layout, pages, progress);
}

ReportResult QtReportEngine::preview(const ReportRequest& request, const Layout& layout,
                                     const Pages& pages, const CardProgress& progress) {
    CardSpool spool;
    const ReportResult gathered =
        forEachPage(pages, progress, [&](const CardText& rows) { spool.append(rows); });
    if (gathered != ReportResult::Done || spool.size() == 0) return gathered;
    LayoutPainter painter(
        layout, {.header = request.printHeader, .stock = true, .alignment = request.alignment});
    PreviewWindow window(toQt(request.title), painter, spool, QApplication::activeWindow());
    window.proposePdf(toQt(request.pdfPath));
    ReportResult result = ReportResult::Done;
    connectCommands(window, request, layout, spool, result);
    window.exec();
    return result;
}

ReportResult QtReportEngine::deliver(PreviewWindow& window, const ReportRequest& request,
                                     const Layout& layout, CardSpool& spool) {
    const bool sideBySide = request.output == ReportOutput::Printer && request.printPreviewed;
    const int cards = static_cast<int>(spool.size()) * (sideBySide ? layout.sides : 1);
    Progress shown({QStringLiteral("preview.progress"), window.windowTitle(),
                    QStringLiteral("Cartão %1 de %2")},
                   &window);
    const CardProgress progress = [&shown, cards](int done) { return shown.show(done, cards); };
    return sideBySide ? request.printPreviewed(progress)
                      : printSpool(request, layout, spool, progress);
}

/// A print that fails closes the preview, so that the caller tells it in the system's words. One
/// that the operator cancelled leaves it open.
ReportResult QtReportEngine::printFrom(PreviewWindow& window, const ReportRequest& request,
                                       const Layout& layout, CardSpool& spool) {
    ReportRequest toPrinter = request;
    toPrinter.output = ReportOutput::Printer;
    const ReportResult result = deliver(window, toPrinter, layout, spool);
    if (result == ReportResult::Done)
        window.tell(sentence(static_cast<qsizetype>(spool.size())));
    else if (result == ReportResult::Cancelled)
        window.tell(QStringLiteral("Impressão cancelada"));
    else
        window.accept();
    return result == ReportResult::Cancelled ? ReportResult::Done : result;
}

void QtReportEngine::connectCommands(PreviewWindow& window, const ReportRequest& request,
                                     const Layout& layout, CardSpool& spool, ReportResult& result) {
    QObject::connect(&window, &PreviewWindow::printRequested, &window,
                     [&] { result = printFrom(window, request, layout, spool); });
    QObject::connect(&window, &PreviewWindow::pdfRequested, &window, [&](const QString& path) {
        ReportRequest toFile = request;
        toFile.output = ReportOutput::PdfFile;
        toFile.pdfPath = path.toStdString();
        const ReportResult saved = deliver(window, toFile, layout, spool);
        window.tell(saved == ReportResult::Done ? QStringLiteral("Gravado em %1").arg(path)
                    : saved == ReportResult::Cancelled
                        ? QStringLiteral("Gravação cancelada")
                        : QStringLiteral("⚠ Não foi possível gravar %1").arg(path));
    });
    QObject::connect(&window, &PreviewWindow::helpRequested, &window, [&] {
        if (!browser_.openHelp()) window.tell(QStringLiteral("⚠ Não foi possível abrir a ajuda"));
    });
}

ReportResult QtReportEngine::printSpool(const ReportRequest& request, const Layout& layout,
                                        CardSpool& spool, const CardProgress& progress) {
    std::size_t next = 0;
    const Pages pages = [&]() -> std::optional<CardText> {
        return next < spool.size() ? std::optional(spool.at(next++)) : std::nullopt;
    };
    return attempt([&] { return printPages(request, layout, pages, progress); });
}

}  // namespace winvrx
