#pragma once

#include "foundation/copies/safety_copies.h"
#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/desk/text_editor.h"
#include "foundation/menu/menu.h"
#include "foundation/register/employee_queries.h"
#include "output/stocks/card_alignment.h"
#include "output/stocks/desktop/card_pictures.h"
#include "report/printers.h"
#include "report/report_engine.h"

#include <QString>

#include <optional>

class QWidget;

namespace winvrx {

class ScreenWindow;

/// Opens the screens of the main window's commands, and says in a line how far each subject is.
class Screens {
  public:
    /// What printing needs. Engine and printers outlive the screens.
    struct Printing {
        ReportEngine& engine;
        Printers& printers;
        CardPictures::Folders layoutFolders;
    };

    Screens(const Workplace& at, Browser& browser, TextEditor& editor, Printing printing,
            SafetyCopies& copies)
        : at_(at),
          browser_(browser),
          editor_(editor),
          printing_(std::move(printing)),
          copies_(copies),
          records_(at.store()) {}

    void openCompanies(QWidget* parent);
    void openEmployees(QWidget* parent);
    void openShifts(QWidget* parent);
    void openWorkMonth(QWidget* parent);
    void openLocalHolidays(QWidget* parent);
    void openTimeCard(QWidget* parent);
    /// `preview`: shows the cards before they are printed.
    void openCards(QWidget* parent, bool preview);
    void openStocks(QWidget* parent);
    void openPrinters(QWidget* parent);
    void openAlignment(QWidget* parent);
    void openCopies(QWidget* parent);

    [[nodiscard]] QString companiesState() const;
    [[nodiscard]] QString employeesState() const;
    [[nodiscard]] QString shiftsState() const;
    [[nodiscard]] QString monthState() const;
    [[nodiscard]] QString timeCardState() const;
    [[nodiscard]] QString stockState() const;

    /// The first subject that still wants something before cards can be printed.
    [[nodiscard]] std::optional<MenuCommand> nextStep() const;

  private:
    /// Runs a screen until it is closed; its help command opens the help page.
    void show(ScreenWindow& window);

    struct Progress {
        int employees = 0;
        std::optional<WorkMonth> month;  ///< chosen, and its holidays are on record
        int filledCards = 0;
        QString stock;
    };
    /// nullopt when no company is selected or its files cannot be read.
    [[nodiscard]] std::optional<Progress> progress() const;

    Workplace at_;
    Browser& browser_;
    TextEditor& editor_;
    Printing printing_;
    AlignmentMemory alignment_;
    SafetyCopies& copies_;
    RecordedAnswers records_;
};

}  // namespace winvrx
