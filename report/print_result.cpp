#include "report/print_result.h"

namespace winvrx {

namespace {

constexpr auto kTitle = "IMPRESSÃO";

const Message kNoPrinter =
    failure(kTitle,
            "ERRO NA IMPRESSÃO DO RELATÓRIO - Isto ocorre quando não há Impressoras "
            "Instalada no PC!");

const Message kNoEngine =
    failure(kTitle, "Erro na Instalação do Programa!\n* Confirme a Instalação do CrystalReport;");

}  // namespace

Message printFailed() {
    return failure(kTitle, "Erro na Impressão do Relatório.");
}

Message printerGone(const std::string& title) {
    return failure(title, "ERRO AO IMPRIMIR");
}

bool isPrinted(ReportResult result, Operator& person, const ReportEngine& engine) {
    if (result == ReportResult::Done || result == ReportResult::Cancelled)
        return result == ReportResult::Done;
    Message message = kNoPrinter;
    if (result == ReportResult::PrinterGone) message = printerGone(kTitle);
    if (result == ReportResult::Failed) message = printFailed();
    if (result == ReportResult::NoEngine) message = kNoEngine;
    if (result != ReportResult::NoPrinter) message.detail = engine.explanation();
    person.tell(message);
    return false;
}

}  // namespace winvrx
