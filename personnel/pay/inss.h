#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

namespace winvrx {

/// The employee's contribution on the pay of a month (EC 103/2019, art. 28): each rate falls on the
/// part of `base` in its bracket, nothing on what lies above the ceiling. Cents as the company's
/// settings say. Throws LegalTableFault for a month before the table.
[[nodiscard]] Reckoning inss(const PayrollLaw& law, Money base, WorkMonth competence,
                             std::string_view words = "INSS");

}  // namespace winvrx
