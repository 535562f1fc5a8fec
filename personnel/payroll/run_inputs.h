#pragma once

#include "foundation/files/folder_names.h"
#include "personnel/pay/card_history.h"
#include "personnel/payroll/month_inputs.h"
#include "personnel/payroll/payroll_event.h"
#include "personnel/payroll/payroll_runs.h"

#include <optional>

// What a run takes in besides the month: of a 13th salary the year's cards and the first
// instalment.

namespace winvrx {

struct RunInputs {
    PayrollRun run = PayrollRun::Month;
    CardHistory history = {};             ///< of the year so far
    std::optional<Money> firstPaid = {};  ///< of the second instalment, what the first paid out
};
/// Throws FileFault.
[[nodiscard]] RunInputs loadRunInputs(const Store& store, const CompanyCode& company,
                                      const EmployeeMonth& of, PayrollRun run,
                                      SettingsByMonth& settings, const FolderNames& names);

/// The month of the year of `month` in which the run is recorded; the last of many.
[[nodiscard]] std::optional<WorkMonth> recordedInYear(const EmployeeKey& key, PayrollRun run,
                                                      WorkMonth month, const FolderNames& names);

/// The day on which the run is paid: the month closes on its last, a second instalment is due on
/// 20/12.
[[nodiscard]] Date paymentDay(PayrollRun run, WorkMonth month);

/// nullopt where the contract has no day in the month.
[[nodiscard]] std::optional<PaySheetCase> runCase(const PayrollLaw& law, const EmployeeMonth& of,
                                                  const RunInputs& inputs,
                                                  const PayrollEvents& events);

}  // namespace winvrx
