#pragma once

#include "foundation/values/date.h"
#include "personnel/pay/fraction.h"

#include <cstdint>
#include <vector>

// What the law sets in reais and per cent, each figure with the month or the day from which it is
// valid. INSS, minimum wage and salary-family go by the month of competence; everything of the
// IRRF goes by the day of payment.

namespace winvrx {

/// The minimum wage; what each dependant takes off the base of the IRRF; the discount that may be
/// taken instead of all legal deductions, zero where there is none.
struct LegalAmount {
    Date from{};
    Money amount{};
};

struct Bracket {
    Money top;      ///< of the IRRF's last one: none, kNoTop
    Fraction rate;  ///< per cent
    Money deduction = {};
};
inline constexpr Money kNoTop{INT64_MAX};

struct InssTable {
    Date from{};
    std::vector<Bracket> brackets;  ///< rising; the last top is the ceiling

    [[nodiscard]] Money ceiling() const { return brackets.back().top; }
};

struct SalaryFamily {
    Date from{};
    Money quota{};
    Money limit{};  ///< the highest month's pay that has it
};

struct IncomeTaxTable {
    Date from{};
    std::vector<Bracket> brackets;  ///< rising; the first has the rate 0, the last no top
};

/// Lei 9.250/1995, art. 3º-A: up to `fullUpTo` the tax falls by at most `most`, up to `upTo` by
/// start − rate × income.
struct TaxReduction {
    Date from{};
    Money fullUpTo{};
    Money most{};
    Money upTo{};
    Money start{};
    Fraction rate{};
};

}  // namespace winvrx
