#pragma once

#include "personnel/pay/payroll_law.h"
#include "personnel/pay/reckoning.h"

namespace winvrx {

/// Which income is taxed: each apart from the others (RIR/2018, art. 682; Lei 9.250/1995, art. 3º-A
/// par. 3).
enum class TaxedIncome { Month, Vacation, Thirteenth };

struct IncomeTaxCase {
    TaxedIncome kind = TaxedIncome::Month;
    Money income = {};  ///< gross and taxable, before any deduction
    Money inss = {};
    int dependants = 0;
    Money alimony = {};  ///< by court decision
    Money privatePension = {};
    Date paid{};  ///< which table holds
    /// Of a vacation, where the company takes both together for the reduction.
    Money monthsIncome = {};
};

struct IncomeTax {
    bool isSimplified = false;  ///< the simplified discount was taken instead of the deductions
    Money base;
    Money tableTax;
    Money reduction;
    Money due;       ///< tableTax − reduction
    Money withheld;  ///< nothing where up to ten reals are waived
    Memo memo;
};

/// The tax withheld on one payment. Half up at cents for tax and reduction, each once. Throws
/// LegalTableFault for a day before the tables.
[[nodiscard]] IncomeTax incomeTax(const PayrollLaw& law, const IncomeTaxCase& payment);

}  // namespace winvrx
