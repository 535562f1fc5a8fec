#include "report/desktop/pdf_file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace winvrx {

QString folderForPdfFiles() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

QString choosePdfFile(QWidget* parent, const QString& title, const QString& proposedName) {
    QFileDialog dialog(parent, title, folderForPdfFiles(), QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(proposedName);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace winvrx
