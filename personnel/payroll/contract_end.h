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

/// The last day of a contract whose end pays what the run would pay; nullopt where the payroll
/// does.
[[nodiscard]] std::optional<Date> endThatPays(const EmployeeMonth& of, const RunInputs& inputs);

/// "o saldo de salário", "o 13º salário", "as férias": what the run and the end both could pay.
[[nodiscard]] std::string paidByTheEnd(PayrollRun run);

}  // namespace winvrx
