#pragma once

#include "personnel/payroll/folha.h"
#include "personnel/vacation/vacation_notice.h"

#include <optional>

namespace winvrx {

/// Opens the receipt of a vacation or of an instalment of the 13th (CLT, art. 145; Lei 4.749/1965),
/// as it is recorded, in the word processor. Refuses for an employee without a contract, or
/// inactive, and before anything is recorded; then asks. False when it was not opened.
[[nodiscard]] bool showRunReceipt(const Workplace& at, const PaperDesk& desk,
                                  const std::optional<OpenPayroll>& payroll);

}  // namespace winvrx
