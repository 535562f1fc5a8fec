#pragma once

#include "personnel/pay/payroll_law.h"
#include "tests/payroll_cases/payroll_case.h"

namespace winvrx::testing {

/// What the program computes for a case. Throws UnknownCase for a topic, key or value that it does
/// not know, and the faults of the computation.
[[nodiscard]] CaseFigures figuresOf(const PayrollCase& one, const LegalTables& tables,
                                    const PayrollSettings& settings);

/// The topics, in two files by what they are about.
using Topic = void (*)(const CaseInputs& in, const PayrollLaw& law, CaseFigures& out);
[[nodiscard]] Topic monthTopic(std::string_view name);   ///< nullptr for another
[[nodiscard]] Topic periodTopic(std::string_view name);  ///< nullptr for another

}  // namespace winvrx::testing
