#pragma once

#include "foundation/desk/operator.h"
#include "report/report_engine.h"

namespace winvrx {

/// "Erro na Impressão do Relatório."
[[nodiscard]] Message printFailed();

/// "ERRO AO IMPRIMIR", for a chosen printer that cannot be reached.
[[nodiscard]] Message printerGone(const std::string& title);

/// Tells the operator of a run that failed. True when it was carried out.
[[nodiscard]] bool isPrinted(ReportResult result, Operator& person, const ReportEngine& engine);

}  // namespace winvrx
