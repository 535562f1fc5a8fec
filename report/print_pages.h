#pragma once

#include "foundation/desk/command.h"
#include "report/report_engine.h"

#include <cstddef>
#include <string>

namespace winvrx {

/// What printing needs. The engine outlives the call.
struct PrintDesk {
    Workplace at;
    ReportEngine& engine;
    PageProgress progress = {};
};

/// Prints, saves or shows the pages, and tells the operator when it fails. Pages already printed
/// stay printed.
///
/// On a printer a layout with two sides is printed in two jobs: all pages on their first side,
/// then, when the operator has put the sheets back, all on their second.
[[nodiscard]] PrintEnd printPages(const PrintDesk& desk, const ReportRequest& request,
                                  ReportPages pages);

/// Pages are printed from a data folder on drive "C" only: "Diretório Inválido p/ Impressão! …",
/// or the screen's own words for it.
[[nodiscard]] bool requirePrintingDrive(const Workplace& at, const Message& wrongDrive);
[[nodiscard]] Message wrongDrive();

/// What the operator does with the sheets between their two sides, be they one or many. The rule
/// is worked out in docs/layout-files.md.
[[nodiscard]] std::string sheetsBackInstruction(SheetExit exit, std::size_t sheets);

/// In which order the second sides then come out of a stack.
[[nodiscard]] PageOrder secondSideOrder(SheetExit exit);

/// "Erro na Impressão do Relatório."
[[nodiscard]] Message printFailed();

/// "ERRO AO IMPRIMIR", for a chosen printer that cannot be reached.
[[nodiscard]] Message printerGone(const std::string& title);

}  // namespace winvrx
