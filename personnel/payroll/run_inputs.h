#pragma once

#include "foundation/files/folder_names.h"
#include "personnel/pay/card_history.h"
#include "personnel/payroll/month_inputs.h"
#include "personnel/payroll/payroll_event.h"
#include "personnel/payroll/payroll_runs.h"
#include "personnel/vacation/vacation_record.h"

#include <optional>
#include <vector>

// What a run takes in besides the month: of a 13th salary the year's cards and the first
// instalment, of a vacation what the vacation screen has recorded, and of the month itself what was
// withheld of vacations that have days in it.

namespace winvrx {

/// A vacation whose pay is recorded.
struct PaidVacation {
    LeavePeriod away;
    int days = 0;
    Money taxable;
    Money inss;
};

struct RunInputs {
    PayrollRun run = PayrollRun::Month;
    CardHistory history = {};             ///< of the year so far, or the acquisition period
    std::optional<Money> firstPaid = {};  ///< of the second instalment, what the first paid out
    std::optional<VacationItem> vacation = {};  ///< that the month pays
    std::vector<PaidVacation> paid = {};        ///< with days in the month
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
