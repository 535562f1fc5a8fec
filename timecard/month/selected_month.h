#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/message.h"
#include "foundation/files/data_folder.h"
#include "foundation/values/date.h"
#include "foundation/values/shift.h"

#include <optional>

namespace winvrx {

/// The month chosen for the run and the shift filter it was chosen with: `DataIde.ivc`, line 1 the
/// month as "mm-yyyy", line 2 the filter's code.
struct SelectedMonth {
    WorkMonth month;
    ShiftFilter shiftFilter = ShiftFilter::Todos;
};

/// nullopt when no month is chosen, or the file does not hold one.
[[nodiscard]] std::optional<SelectedMonth> loadSelectedMonth(const Store& store);
void saveSelectedMonth(const Store& store, const SelectedMonth& selected);

/// "Informe um Mês de Trabalho!!", titled "Aviso": what a screen says that needs a month.
[[nodiscard]] Message noMonthChosen();
/// The month chosen, for a screen of the company in use; tells when either is missing.
[[nodiscard]] std::optional<WorkMonth> requireSelectedMonth(const Workplace& at);

}  // namespace winvrx
