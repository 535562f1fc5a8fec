#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/register/employee.h"
#include "output/stocks/printer_memory.h"
#include "report/printers.h"
#include "report/report_engine.h"

#include <functional>
#include <string>
#include <string_view>
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

/// What a screen that prints works with beside the desk. All outlive the screen.
struct PrintingDesk {
    Browser& browser;
    ReportEngine& engine;
    const Printers& printers;
};

/// The cards of a run, or other pages of employees, and how they are printed.
struct CardBatch {
    std::vector<Employee> people;
    std::string companyName;
    std::string period;  ///< in the names of PDF files: "03-2024", "21/02/2024 a 20/03/2024"
    std::string stockCode = {};  ///< of a stock of the card print; empty: the request's layout
    PrintChoices choices;
    ReportRequest request;  ///< without PDF path; its title and noun name the pages
    std::size_t pagesEach = 1;
    /// A page of an employee, counted from 0; called when its turn comes, may throw.
    std::function<ReportRows(const Employee&, std::size_t page)> rowsOf;
    std::string opening;  ///< title of the offer to open what was saved
};

/// Sends the cards of a list to printer, preview or PDF files, and offers to open the files. A
/// failed card ends the run; cards already printed stay printed. True when every card was printed;
/// who was not told why knows, having cancelled.
[[nodiscard]] bool printCards(const Workplace& at, const PrintingDesk& desk, const CardBatch& batch,
                              const PrintRun& run);

/// "CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf", of title, subject and period: a plain file name
/// whatever subject and period hold.
[[nodiscard]] std::string pdfNameOf(const std::string& title, std::string_view subject,
                                    const std::string& period);

/// Offers to open the PDF files that a run has saved, or their folder.
void offerToOpenPdf(Operator& person, Browser& browser, const std::string& title,
                    const std::vector<std::string>& files);

}  // namespace winvrx
