#pragma once

#include "foundation/widgets/desktop/option_group.h"
#include "output/cards/card_run.h"

namespace winvrx {

class Progress;

/// Where pages go: the preview, a printer, one PDF file or, where that is offered, one for each
/// employee.
class OutputChoice : public OptionGroup {
    Q_OBJECT

  public:
    enum class Pdf { OneFile, ForEachToo };

    OutputChoice(const QString& objectName, QWidget* parent, Pdf pdf = Pdf::ForEachToo);

    void showOutput(const PrintChoices& choices);
    /// Where to; the others are the usual ones.
    [[nodiscard]] PrintChoices choices() const;
};

/// Asks for PDF files in dialogues over `parent`, and tells `progress` where there is one. Both
/// outlive the run.
[[nodiscard]] PrintRun pdfAsking(QWidget* parent, Progress* progress = nullptr);

}  // namespace winvrx
