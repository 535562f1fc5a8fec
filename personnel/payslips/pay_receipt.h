#pragma once

#include "foundation/desk/word_processor.h"
#include "personnel/payslips/paid_employee.h"

namespace winvrx {

/// "RECIBO DE PAGAMENTO" of an employee, in the system's own words, dated `issued`. With `memos`
/// the sum behind each line follows on a page of its own.
[[nodiscard]] Document payReceipt(const PaperHeading& heading, const PaidEmployee& one, Date issued,
                                  bool memos);

/// The same of a salary advance alone.
[[nodiscard]] Document advanceReceipt(const PaperHeading& heading, const Employee& employee,
                                      Money advance, Date issued);

}  // namespace winvrx
