#pragma once

#include "personnel/pay/termination_pay.h"
#include "personnel/payroll/run_inputs.h"

#include <optional>
#include <string>

// What both the payroll and the end of a contract could pay: the wages of the last month, the
// year's 13th, a vacation that nobody takes any more. The end pays it. What payrolls on record have
// paid of it is taken off there, and one that would pay it still is recorded on the operator's word
// alone.

namespace winvrx {

/// What is on record, up to now, for a contract that ends after `last`. Throws FileFault.
[[nodiscard]] PaidBeforeTheEnd paidBeforeTheEnd(const Store& store, const EmployeeKey& key,
                                                Date last, const FolderNames& names);

/// The end of a contract beside a payroll that pays what it pays.
struct EndBeside {
    Date last{};
    bool isActive = false;  ///< a termination is on record of who has not been made inactive
    bool pays = true;       ///< what the run would pay; not where it lies further back
};
/// nullopt where the payroll alone pays. Of who is active the last termination counts, by its last
/// day worked, unless it is of an earlier contract; from before the run's month too.
[[nodiscard]] std::optional<EndBeside> endBeside(const EmployeeMonth& of, const RunInputs& inputs);

/// "o saldo de salário", "o 13º salário", "as férias": what the run and the end both could pay.
[[nodiscard]] std::string paidByTheEnd(PayrollRun run);

}  // namespace winvrx
