#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee.h"
#include "foundation/values/date.h"
#include "output/cards/card_sides.h"
#include "output/stocks/card_stock.h"
#include "output/stocks/printer_memory.h"
#include "report/report_engine.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace winvrx {

/// "Opção de Impressão do Cartão:".
enum class PrintMode {
    OneRun,      ///< all cards are one job
    OneAtATime,  ///< each card is a job of its own, and confirmed
};

enum class PdfFiles { OneForAll, OneForEach };

/// What the operator chooses on the printing screen.
struct PrintChoices {
    PrintMode mode = PrintMode::OneRun;
    ReportOutput output = ReportOutput::Preview;
    PdfFiles pdfFiles = PdfFiles::OneForAll;
    PrinterMemory printer = {};  ///< what is remembered from day to day
};

/// What a run asks of the screen while it lasts. All may be empty.
struct PrintRun {
    /// Told after each card; false cancels the run.
    std::function<bool(int done, int total)> progress = {};
    /// Where to save a PDF file, given a name to propose; empty cancels the run. Asked once a job.
    std::function<std::string(const std::string& proposedName)> choosePdf = {};
    /// The folder for one PDF file an employee; empty cancels the run. Asked once a run.
    std::function<std::string()> choosePdfFolder = {};
};

/// All that a run of cards works on.
struct CardRunPlan {
    std::vector<Employee> people;
    std::string companyName;
    WorkMonth month{};
    PrintChoices choices;
    ReportRequest request;  ///< without layout and PDF path
    std::function<std::string(LayoutSet)> layoutOf;
    /// Called when the card's turn comes; may throw.
    std::function<std::vector<CardRow>(const Employee&)> rowsOf;
};

/// Sends the cards of a list to printer, preview or PDF files, side by side where the layout has
/// two. A failed card ends the run; cards already printed stay printed.
class CardRun {
  public:
    CardRun(const Workplace& at, ReportEngine& engine, CardRunPlan plan, const PrintRun& run);

    /// True when every card was printed; who was not told why knows, having cancelled. Throws what
    /// rowsOf() throws.
    [[nodiscard]] bool print();

  private:
    using People = std::vector<const Employee*>;

    [[nodiscard]] bool oneRun();
    [[nodiscard]] bool oneAtATime();
    [[nodiscard]] bool confirms(const Employee& employee);
    [[nodiscard]] bool send(const People& people, LayoutSet set);
    [[nodiscard]] bool preview(const People& people, LayoutSet set);
    [[nodiscard]] bool toPrinter(const People& people, LayoutSet set);
    [[nodiscard]] bool turnsTheStack(std::size_t cards);
    [[nodiscard]] bool toOnePdf(const People& people, LayoutSet set);
    [[nodiscard]] bool toPdfOfEach(const People& people, LayoutSet set);
    [[nodiscard]] std::string pdfNameFor(const People& people) const;
    [[nodiscard]] bool choosesFolder();
    [[nodiscard]] bool mayReplaceFiles();

    [[nodiscard]] ReportRequest requestFor(LayoutSet set, ReportOutput output) const;
    [[nodiscard]] People inPrintOrder(const People& people, CardSide side) const;
    [[nodiscard]] bool job(const ReportRequest& request, const People& people);

    Workplace at_;
    ReportEngine& engine_;
    CardRunPlan plan_;
    PrintRun run_;
    std::string pdfFolder_;
    bool twoSided_ = false;
    int cardsDone_ = 0;
    int cardsInAll_ = 0;  ///< a card counts once for each time that it goes through the printer
};

}  // namespace winvrx
