#pragma once

#include <QString>

class QWidget;

namespace winvrx {

/// Asks where to save a PDF file, in the documents folder at first. A name typed without its ending
/// gets it, before a file of that name is asked about. Empty when the operator cancels.
[[nodiscard]] QString choosePdfFile(QWidget* parent, const QString& title,
                                    const QString& proposedName);

}  // namespace winvrx
