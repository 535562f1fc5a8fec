#pragma once

#include "foundation/widgets/desktop/option_group.h"
#include "output/cards/card_run.h"

namespace winvrx {

/// Where pages go: the preview, a printer, one PDF file or, where that is offered, one for each
/// employee.
class OutputChoice : public OptionGroup {
    Q_OBJECT

  public:
    enum class Pdf { OneFile, ForEachToo };

    OutputChoice(const QString& objectName, QWidget* parent, Pdf pdf = Pdf::ForEachToo);

    void showOutput(const PrintChoices& choices);
    /// Puts the choice into `choices`.
    void takeInto(PrintChoices& choices) const;
};

/// Asks for PDF files in dialogues over `parent`, which outlives the run.
[[nodiscard]] PrintRun pdfAsking(QWidget* parent);

}  // namespace winvrx
