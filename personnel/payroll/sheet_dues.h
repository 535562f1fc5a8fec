#pragma once

#include "personnel/pay/employer_dues.h"
#include "personnel/payroll/pay_sheet.h"
#include "personnel/payroll/payroll_facts.h"

#include <string>
#include <utility>
#include <vector>

namespace winvrx {

/// What a payroll costs its employer beside the pay, worked out from its amounts alone, whether
/// they were computed, typed over or read back.
struct SheetDues {
    Reckoning fgts;          ///< of a domestic employer with the reserve of 3,2%
    Reckoning employerInss;  ///< of a domestic employer with the insurance of 0,8%
    std::optional<DomesticGuide> guide = {};
};
[[nodiscard]] SheetDues sheetDues(const PayrollLaw& law, const PaySheet& sheet, WorkMonth month,
                                  const PayrollFacts& facts);

/// Bases and dues under their names, for a list.
using NamedAmounts = std::vector<std::pair<std::string, Money>>;
[[nodiscard]] NamedAmounts namedAmounts(const PaySheet& sheet, const SheetDues& dues);

}  // namespace winvrx
