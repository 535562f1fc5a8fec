#include "personnel/invoice_letter/desktop/letter_entry.h"

#include "personnel/invoice_letter/carta_correcao_imprime.h"
#include "personnel/invoice_letter/desktop/carta_correcao_window.h"
#include "personnel/invoice_letter/desktop/qt_xml_reader.h"

#include <QStandardPaths>

namespace winvrx {

void openCorrectionLetters(const Workplace& at, ReportEngine& engine, QWidget* parent) {
    const QtXmlReader reader;
    CartaCorrecaoImprime letters(at, {engine, reader});
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    (void)letters.openFolder(std::filesystem::path(folder.toStdU16String()));
    CartaCorrecaoWindow window(letters, parent);
    window.exec();
}

}  // namespace winvrx
