#include "report/desktop/report_device.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/system_printers.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kDotsPerInch = 1200;

/// Counts from the sheet's corner: in the other mode a printer's own margins move the page.
QPageLayout borderless(QSizeF page) {
    QPageLayout layout(QPageSize(page, QPageSize::Millimeter), QPageLayout::Portrait,
                       QMarginsF(0, 0, 0, 0));
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

class PdfDevice final : public ReportDevice {
  public:
    PdfDevice(const std::string& path, const std::string& title, QSizeF page)
        : file_(toQt(path)), writer_(&file_) {
        if (!file_.open(QIODevice::WriteOnly)) fail();
        writer_.setResolution(kDotsPerInch);
        writer_.setPageLayout(borderless(page));
        writer_.setTitle(toQt(title));
        writer_.setCreator(QStringLiteral("Winvrx"));
    }

    QPainter& nextPage() override {
        if (painter_.isActive()) {
            writer_.newPage();
        } else {
            if (!painter_.begin(&writer_)) fail();
            const double scale = layoutScale(kDotsPerInch);
            painter_.scale(scale, scale);
        }
        return painter_;
    }

    void finish() override {
        if (!painter_.isActive()) return;
        if (!painter_.end() || !file_.commit()) fail();
    }

  private:
    [[noreturn]] void fail() const {
        throw Fault(file_.fileName().toStdString() + ": " + file_.errorString().toStdString(),
                    "O arquivo PDF não pôde ser gravado.");
    }

    QSaveFile file_;
    QPdfWriter writer_;
    QPainter painter_;
};

ReportFault printerGone(const std::string& what, const std::string& explanation) {
    return {ReportFault::Kind::PrinterGone, what, explanation};
}

QPrinterInfo printerOf(const std::string& name) {
    if (name.empty()) {
        const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
        if (!usual.isNull()) return usual;
        throw printerGone("no default printer", "Nenhuma impressora padrão está definida.");
    }
    const auto installed = SystemPrinters::installed();
    const std::string problem = printerProblem(installed, name);
    if (!problem.empty()) throw printerGone("no printer of the name " + name, problem);
    return QPrinterInfo::printerInfo(toQt(printersMeant(installed, name).front()));
}

/// Hands an option to the printing system by its PPD keyword. The property's number is the one
/// under which Qt's own print dialogue passes such options.
void setSystemOption(QPrinter& printer, const QString& keyword, const QString& value) {
    constexpr auto kSystemOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    QStringList options = printer.printEngine()->property(kSystemOptions).toStringList();
    options << keyword << value;
    printer.printEngine()->setProperty(kSystemOptions, options);
}

class PrinterDevice final : public ReportDevice {
  public:
    PrinterDevice(const ReportRequest& request, QSizeF page)
        : printer_(printerOf(request.printerName), QPrinter::HighResolution) {
        if (!printer_.isValid()) fail("cannot be used");
        printer_.setDocName(toQt(request.title));
        printer_.setCreator(QStringLiteral("Winvrx"));
        printer_.setPageLayout(borderless(page));
        const auto tray = std::ranges::find_if(
            request.trays, [](const auto& name) { return !trimmed(name).empty(); });
        if (tray != request.trays.end())
            setSystemOption(printer_, QStringLiteral("InputSlot"), toQt(trimmed(*tray)));
    }

    QPainter& nextPage() override {
        if (painter_.isActive()) {
            if (!printer_.newPage()) fail("takes no further page");
        } else {
            if (!painter_.begin(&printer_)) fail("cannot be started");
            const double scale = layoutScale(printer_.resolution());
            painter_.scale(scale, scale);
        }
        return painter_;
    }

    /// The print system does not tell whether it took the job; a printer that has gone by now has
    /// not.
    void finish() override {
        if (!painter_.isActive()) return;
        if (!painter_.end() || printer_.printerState() == QPrinter::Error) fail("reports an error");
        (void)printerOf(printer_.printerName().toStdString());
    }

  private:
    [[noreturn]] void fail(const std::string& cause) const {
        const std::string name = printer_.printerName().toStdString();
        throw printerGone("printer " + name + " " + cause,
                          "A impressora " + name + " não pôde ser usada.");
    }

    QPrinter printer_;
    QPainter painter_;
};

}  // namespace

std::unique_ptr<ReportDevice> openDevice(const ReportRequest& request, QSizeF page) {
    if (request.output == ReportOutput::PdfFile)
        return std::make_unique<PdfDevice>(request.pdfPath, request.title, page);
    if (SystemPrinters::installed().empty())
        throw ReportFault(ReportFault::Kind::NoPrinter, "no printer is installed", {});
    return std::make_unique<PrinterDevice>(request, page);
}

}  // namespace winvrx
