#include "output/cards/desktop/output_choice.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/progress.h"
#include "report/desktop/pdf_file_dialog.h"

#include <QFileDialog>

namespace winvrx {

namespace {

/// The option beside those of ReportOutput: a PDF file for each employee.
constexpr int kPdfForEach = 100;

std::vector<Option> optionsOf(OutputChoice::Pdf pdf) {
    std::vector<Option> options = {
        {ReportOutput::Preview, QStringLiteral("&Visualizar"), "preview"},
        {ReportOutput::Printer, QStringLiteral("I&mprimir"), "printer"},
        {ReportOutput::PdfFile, QStringLiteral("Gravar em P&DF"), "pdf"},
        {kPdfForEach, QStringLiteral("Um PDF por &funcionário"), "pdfForEach"}};
    if (pdf == OutputChoice::Pdf::OneFile) options.pop_back();
    return options;
}

}  // namespace

OutputChoice::OutputChoice(const QString& objectName, QWidget* parent, Pdf pdf)
    : OptionGroup(QStringLiteral("Saída:"), objectName, pdf == Pdf::OneFile ? 3 : 2, optionsOf(pdf),
                  parent) {}

void OutputChoice::showOutput(const PrintChoices& choices) {
    const bool pdfForEach =
        choices.output == ReportOutput::PdfFile && choices.pdfFiles == PdfFiles::OneForEach;
    choose(pdfForEach ? kPdfForEach : static_cast<int>(choices.output));
}

PrintChoices OutputChoice::choices() const {
    if (chosen() != kPdfForEach) return {.output = chosenAs<ReportOutput>()};
    return {.output = ReportOutput::PdfFile, .pdfFiles = PdfFiles::OneForEach};
}

PrintRun pdfAsking(QWidget* parent, Progress* progress) {
    return {.progress = progress ? PageProgress(std::ref(*progress)) : PageProgress(),
            .choosePdf =
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
