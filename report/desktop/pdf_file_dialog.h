#pragma once

#include <QString>

class QWidget;

namespace winvrx {

/// The folder that is proposed for PDF files: the user's documents, else his own. It exists.
[[nodiscard]] QString folderForPdfFiles();

/// Asks where to save a PDF file, in `folderForPdfFiles` at first. A name typed without its ending
/// gets it, before a file of that name is asked about. Empty when the operator cancels.
[[nodiscard]] QString choosePdfFile(QWidget* parent, const QString& title,
                                    const QString& proposedName);

}  // namespace winvrx
