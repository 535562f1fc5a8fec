#include "report/print_pages.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr auto kTitle = "IMPRESSÃO";
constexpr auto kPrinting = "IMPRIMINDO";
constexpr std::string_view kPrintingDrive = "C";

const Message kNoPrinter =
    failure(kTitle,
            "ERRO NA IMPRESSÃO DO RELATÓRIO - Isto ocorre quando não há Impressoras "
            "Instalada no PC!");

const Message kNoEngine =
    failure(kTitle, "Erro na Instalação do Programa!\n* Confirme a Instalação do CrystalReport;");

const Message kLeaveSecondSide =
    warning(kPrinting, "Deseja deixar os cartões impressos somente no primeiro lado?");

Message printSecondSide(SheetExit exit, std::size_t sheets) {
    return question(kPrinting,
                    "O primeiro lado já foi enviado. Deseja imprimir o segundo lado agora?",
                    sheetsBackInstruction(exit, sheets));
}

Message messageOf(const std::exception& fault) {
    const auto* known = dynamic_cast<const ReportFault*>(&fault);
    if (!known) return printFailed();
    if (known->kind() == ReportFault::Kind::PrinterGone) return printerGone(kTitle);
    return known->kind() == ReportFault::Kind::NoPrinter ? kNoPrinter : kNoEngine;
}

bool confirmSecondSide(Operator& person, SheetExit exit, std::size_t sheets) {
    const Message again = printSecondSide(exit, sheets);
    while (!person.agrees(again))
        if (person.agrees(kLeaveSecondSide)) return false;
    return true;
}

PrintEnd printBothSides(const PrintDesk& desk, ReportRequest request, ReportPages& pages) {
    const int count = static_cast<int>(pages.count());
    int before = 0;
    const PageProgress progress = [&](int done, int) {
        return !desk.progress || desk.progress(before + done, 2 * count);
    };
    request.sides = SheetSides::First;
    PrintEnd end = desk.engine.print(request, pages, progress);
    if (end != PrintEnd::Done) return end;
    if (!confirmSecondSide(desk.at.person, request.exit, pages.count())) return PrintEnd::Cancelled;
    before = count;
    request.sides = SheetSides::Second;
    pages.restart(secondSideOrder(request.exit));
    return desk.engine.print(request, pages, progress);
}

PrintEnd send(const PrintDesk& desk, const ReportRequest& request, ReportPages& pages) {
    const PageProgress progress = desk.progress ? desk.progress : [](int, int) { return true; };
    if (request.output == ReportOutput::Preview)
        return desk.engine.preview(
            request, pages, progress, [&](ReportPages& shown, const PageProgress& printing) {
                ReportRequest toPrinter = request;
                toPrinter.output = ReportOutput::Printer;
                return printPages({desk.at, desk.engine, printing}, toPrinter, shown);
            });
    if (request.output == ReportOutput::Printer && request.sides == SheetSides::Both &&
        desk.engine.sidesOf(request) > 1)
        return printBothSides(desk, request, pages);
    return desk.engine.print(request, pages, progress);
}

}  // namespace

PrintEnd printPages(const PrintDesk& desk, const ReportRequest& request, ReportPages pages) {
    try {
        return send(desk, request, pages);
    } catch (const std::exception& fault) {
        reportFailure(desk.at, messageOf(fault), fault);
        return PrintEnd::Failed;
    }
}

bool requirePrintingDrive(const Workplace& at, const Message& wrongDrive) {
    return upperCase(std::string(1, at.session.folder.driveLetter())) == kPrintingDrive ||
           at.person.refuse(wrongDrive);
}

Message wrongDrive() {
    return failure("Imprimir",
                   "Diretório Inválido p/ Impressão! Transfira os dados do diretório atual para o "
                   "Diretório 'C'.");
}

std::string sheetsBackInstruction(SheetExit exit, std::size_t sheets) {
    const bool down = exit == SheetExit::FaceDown;
    if (sheets == 1)
        return down ? "Ponha o cartão de volta na bandeja como ele saiu, sem virar. A borda de "
                      "cima entra primeiro, como da primeira vez."
                    : "Vire o cartão, como a página de um livro, e ponha-o de volta na bandeja. A "
                      "borda de cima entra primeiro, como da primeira vez.";
    return down ? "Ponha a pilha de volta na bandeja como ela saiu, sem virar e sem mudar a ordem. "
                  "A borda de cima entra primeiro, como da primeira vez. O segundo lado sai do "
                  "último cartão para o primeiro."
                : "Vire a pilha inteira de uma vez, como a página de um livro, sem mudar a ordem, "
                  "e ponha-a de volta na bandeja. A borda de cima entra primeiro, como da primeira "
                  "vez. O segundo lado sai do primeiro cartão para o último.";
}

PageOrder secondSideOrder(SheetExit exit) {
    return exit == SheetExit::FaceDown ? PageOrder::Backwards : PageOrder::Forwards;
}

Message printFailed() {
    return failure(kTitle, "Erro na Impressão do Relatório.");
}

Message printerGone(const std::string& title) {
    return failure(title, "ERRO AO IMPRIMIR");
}

}  // namespace winvrx
