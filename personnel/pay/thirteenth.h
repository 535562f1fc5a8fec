#pragma once

#include "personnel/pay/employer_dues.h"
#include "personnel/pay/income_tax.h"

#include <optional>
#include <vector>

// The 13th salary (Lei 4.090/1962, Lei 4.749/1965): a twelfth of the December salary for each month
// of the year with fifteen days of service or more, half of it by 30/11, the rest by 20/12.

namespace winvrx {

/// Months of the year with fifteen days of service or more between admission and `end`, both
/// included; days of unjustified absence are no service.
[[nodiscard]] int thirteenthTwelfths(std::chrono::year year, Date admission, Date end,
                                     const std::vector<Date>& absences = {});

struct ThirteenthCase {
    Money salary = {};    ///< of December, or of the last month
    Money averages = {};  ///< of overtime and other variable pay
    int twelfths = 12;
    /// Those that are full when the first instalment is paid; counts by the company's setting.
    std::optional<int> twelfthsSoFar = {};
    int dependants = 0;
    Money alimony = {};
    Money privatePension = {};
    Date paid{};  ///< the second instalment
    FgtsRate fgtsRate = FgtsRate::Usual;
};

struct Thirteenth {
    Reckoning total;
    Reckoning first;   ///< half, without deductions
    Reckoning inss;    ///< on the total, apart from the month's pay
    IncomeTax tax;     ///< on the total, exclusively at source
    Reckoning second;  ///< total − first − INSS − IRRF: what the second instalment pays out
    Reckoning fgtsFirst;
    Reckoning fgtsSecond;
};
[[nodiscard]] Thirteenth thirteenth(const PayrollLaw& law, const ThirteenthCase& year);

/// (salary + averages) ÷ 12 × twelfths.
[[nodiscard]] Reckoning thirteenthOf(Money salary, Money averages, int twelfths,
                                     std::string words = "13º salário");

/// The last days for both instalments; where such a day is none for payment, it is paid before.
[[nodiscard]] Date firstInstalmentDue(std::chrono::year year);
[[nodiscard]] Date secondInstalmentDue(std::chrono::year year);

}  // namespace winvrx
