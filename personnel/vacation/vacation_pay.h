#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

#include <vector>

namespace winvrx {

/// A vacation's pay of two months by the days in each: what stands in the INSS of each month
/// (Decreto 3.048/1999, art. 214 par. 14). Nothing is lost by the division.
struct VacationShare {
    WorkMonth month{};
    Money amount;
};
[[nodiscard]] std::vector<VacationShare> sharesByMonth(Money pay, Date start, int days);

/// The INSS of a vacation's pay: of each month's share by itself, as it is withheld when the
/// vacation is paid. The month's own payroll withholds what its pay adds.
[[nodiscard]] Reckoning vacationInss(const PayrollLaw& law, Money taxable, Date start, int days);

}  // namespace winvrx
