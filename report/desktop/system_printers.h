#pragma once

#include "report/printers.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace winvrx {

/// The printers of CUPS or Windows, through Qt.
class SystemPrinters final : public Printers {
  public:
    /// A program of the desktop that adds printers.
    struct AddDialogue {
        QString program;
        QStringList arguments;
    };

    /// What this system may have, best first; the last resort is the print server's own page, shown
    /// by the browser.
    [[nodiscard]] static std::vector<AddDialogue> addDialogues();
    [[nodiscard]] static std::vector<std::string> installed();

    /// Starts the first of `dialogues` that exists, else shows `page`.
    explicit SystemPrinters(std::vector<AddDialogue> dialogues = addDialogues(),
                            std::function<bool()> showPage = showServerPage);

    [[nodiscard]] std::vector<std::string> names() const override { return installed(); }
    [[nodiscard]] std::string defaultName() const override;
    [[nodiscard]] bool openAddDialogue() override;

  private:
    /// Only when the print server answers; false on Windows.
    [[nodiscard]] static bool showServerPage();

    std::vector<AddDialogue> dialogues_;
    std::function<bool()> showPage_;
};

}  // namespace winvrx
