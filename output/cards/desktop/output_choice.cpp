#include "output/cards/desktop/output_choice.h"

#include "foundation/values/desktop/qt_text.h"
#include "report/desktop/pdf_file_dialog.h"

#include <QFileDialog>

namespace winvrx {

namespace {

/// The option beside those of ReportOutput: a PDF file for each employee.
constexpr int kPdfForEach = 100;

constexpr int idOf(ReportOutput output) {
    return static_cast<int>(output);
}

}  // namespace

OutputChoice::OutputChoice(const QString& objectName, QWidget* parent, Pdf pdf)
    : OptionGroup(QStringLiteral("Saída:"), objectName, pdf == Pdf::OneFile ? 3 : 2, parent) {
    addOption(idOf(ReportOutput::Preview), QStringLiteral("&Visualizar"),
              QStringLiteral("preview"));
    addOption(idOf(ReportOutput::Printer), QStringLiteral("I&mprimir"), QStringLiteral("printer"));
    addOption(idOf(ReportOutput::PdfFile), QStringLiteral("Gravar em P&DF"), QStringLiteral("pdf"));
    if (pdf == Pdf::OneFile) return;
    addOption(kPdfForEach, QStringLiteral("Um PDF por &funcionário"), QStringLiteral("pdfForEach"));
}

void OutputChoice::showOutput(const PrintChoices& choices) {
    const bool pdfForEach =
        choices.output == ReportOutput::PdfFile && choices.pdfFiles == PdfFiles::OneForEach;
    choose(pdfForEach ? kPdfForEach : idOf(choices.output));
}

void OutputChoice::takeInto(PrintChoices& choices) const {
    const bool pdfForEach = chosen() == kPdfForEach;
    choices.output = pdfForEach ? ReportOutput::PdfFile : static_cast<ReportOutput>(chosen());
    choices.pdfFiles = pdfForEach ? PdfFiles::OneForEach : PdfFiles::OneForAll;
}

PrintRun pdfAsking(QWidget* parent) {
    return {.choosePdf =
                [parent](const std::string& proposedName) {
                    return toUtf8(
                        choosePdfFile(parent, QStringLiteral("Gravar em PDF"), toQt(proposedName)));
                },
            .choosePdfFolder =
                [parent] {
                    return toUtf8(QFileDialog::getExistingDirectory(
                        parent, QStringLiteral("Pasta dos arquivos PDF"), folderForPdfFiles()));
                }};
}

}  // namespace winvrx
