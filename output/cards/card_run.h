#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/register/employee.h"
#include "output/cards/pdf_name.h"
#include "output/stocks/card_stock.h"
#include "output/stocks/printer_memory.h"
#include "report/print_pages.h"

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
    /// Told after each card, which counts once for each time that it goes through the printer.
    PageProgress progress = {};
    /// Where to save a PDF file, given a name to propose; empty cancels the run. Asked once a job.
    std::function<std::string(const std::string& proposedName)> choosePdf = {};
    /// The folder for one PDF file an employee; empty cancels the run. Asked once a run.
    std::function<std::string()> choosePdfFolder = {};
    /// Lets the operator choose a card stock, after he was told that none is chosen.
    std::function<void()> chooseStock = {};
};

/// The cards of a run, or other pages of employees, and how they are printed.
struct CardBatch {
    std::vector<Employee> people;
    std::string companyName;
    std::string period;     ///< in the names of PDF files: "03-2024"
    std::string stockCode;  ///< of a stock that the card print knows; empty: the request's layout
    PrintChoices choices;
    ReportRequest request;  ///< without PDF path; its title and noun name the pages
    std::size_t pagesEach = 1;
    /// A page of an employee, counted from 0; called when its turn comes, may throw.
    std::function<ReportRows(const Employee&, std::size_t page)> rowsOf;
};

/// Sends the cards of a list to printer, preview or PDF files. A failed card ends the run; cards
/// already printed stay printed.
class CardRun {
  public:
    CardRun(const Workplace& at, ReportEngine& engine, CardBatch batch, const PrintRun& run);

    /// True when every card was printed; who was not told why knows, having cancelled.
    [[nodiscard]] bool print();
    /// The PDF files that `print` has written, in order.
    [[nodiscard]] const std::vector<std::string>& savedFiles() const { return savedFiles_; }

  private:
    using People = std::vector<Employee>;

    [[nodiscard]] bool printOneAtATime();
    [[nodiscard]] bool confirmCard(const Employee& employee);
    [[nodiscard]] bool printJob(const People& people, LayoutSet set);
    [[nodiscard]] bool savePdfOfEach(const People& people, LayoutSet set);
    [[nodiscard]] std::string pdfNameFor(const People& people) const;
    [[nodiscard]] PdfNaming naming() const { return {batch_.request.title, batch_.period}; }
    [[nodiscard]] bool choosePdfFolder();
    [[nodiscard]] bool confirmReplacing();

    [[nodiscard]] ReportRequest requestFor(LayoutSet set) const;
    [[nodiscard]] bool send(const ReportRequest& request, const People& people,
                            const PageProgress& progress);

    Workplace at_;
    ReportEngine& engine_;
    CardBatch batch_;
    PrintRun run_;
    std::string pdfFolder_;
    std::vector<std::string> savedFiles_;
};

/// Offers to open the PDF files that a run has saved, or their folder.
void offerToOpenPdf(Operator& person, Browser& browser, const std::string& title,
                    const std::vector<std::string>& files);

}  // namespace winvrx
