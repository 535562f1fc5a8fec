// The mirrors on the two sides of a card, a half of the month on each.
#include "output/mirrors/hours_reports.h"
#include "output/stocks/card_alignment.h"
#include "output/stocks/card_rows.h"
#include "report/print_pages.h"
#include "report/printers.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr auto kPrinting = "Imprimindo Ponto";
constexpr std::string_view kStock = "18";

/// "PRONTO PARA IMPRIMIR A 1º QUINZENA?? …", of the side.
Message ready(SheetSides side) {
    const std::string number = side == SheetSides::First ? "1" : "2";
    return question(kPrinting, "PRONTO PARA IMPRIMIR A " + number +
                                   "º QUINZENA??          Coloque o Cartão na Impressora e Clique "
                                   "em <SIM> para Prosseguir.. ");
}

const Message kOneSideOnly = notice(kPrinting, "1 cartão ficou impresso somente na 1º QUINZENA.",
                                    "Os cartões seguintes não foram impressos.");

std::string layoutOf(TrayPosition tray) {
    return std::string(findStock(kStock)->stemA) +
           (tray == TrayPosition::Central ? "center.rpt" : "left.rpt");
}

}  // namespace

bool HoursReports::printSides(const PrintChoices& choices, const PrintRun& run,
                              const std::function<void(const std::string&)>& tellLine) {
    chooseMonth();
    if (!month_ || !requirePrintingDrive()) return false;
    return attempt(at_, printFailed(), [&] {
        CardBatch batch = sidesBatch(choices);
        if (batch.people.empty()) return false;
        if (choices.output != ReportOutput::Printer)
            return printCards(at_, {desk_.browser, desk_.engine, desk_.printers}, batch, run);
        batch.request.output = ReportOutput::Printer;
        int done = 0;
        return std::ranges::all_of(batch.people, [&](const Employee& one) {
            if (tellLine) tellLine("Imprimindo Cartão do Funcionário:  " + one.name);
            return printBothSides(batch, one) &&
                   (!run.progress || run.progress(++done, static_cast<int>(batch.people.size())));
        });
    });
}

bool HoursReports::printBothSides(const CardBatch& batch, const Employee& employee) {
    ReportRequest request = batch.request;
    for (const SheetSides side : {SheetSides::First, SheetSides::Second}) {
        request.sides = side;
        const auto card = [&](std::size_t at) { return batch.rowsOf(employee, at); };
        if (at_.person.agrees(ready(side)) &&
            printPages({at_, desk_.engine}, request, {1, card}) == PrintEnd::Done)
            continue;
        if (side == SheetSides::Second) at_.person.tell(kOneSideOnly);
        return false;
    }
    return true;
}

CardBatch HoursReports::sidesBatch(const PrintChoices& choices) {
    const Store store = at_.store();
    const PrinterMemory printer = loadPrinterMemory(store, at_.session.company.value());
    ReportRequest request;
    request.layoutName = layoutOf(printer.tray);
    request.title = "ESPELHO DE PONTO";
    request.columns = cardColumns();
    request.printerName = loadPrinterName(store);
    request.alignment = loadAlignment(
        store,
        {request.printerName.empty() ? desk_.printers.defaultName() : request.printerName,
         std::string(kStock)},
        {});
    request.exit = printer.exit;
    request.noun = cardNoun();
    request.trays = printer.trays;
    return {
        .people = recordedOf(confirmPeople()),
        .companyName = company_.name,
        .period = monthKey(*month_),
        .choices = choices,
        .request = std::move(request),
        .rowsOf = [month = CardRunMonth{store, at_.session.company.value(), company_,
                                        loadMonthSettings(store, *month_)}](
                      const Employee& one, std::size_t) { return cardRows(loadCard(month, one)); },
        .opening = kPrinting};
}

}  // namespace winvrx
