#include "report/desktop/pdf_file_dialog.h"

#include <QFileDialog>
#include <QStandardPaths>

namespace winvrx {

QString choosePdfFile(QWidget* parent, const QString& title, const QString& proposedName) {
    QFileDialog dialog(parent, title,
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(proposedName);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace winvrx
