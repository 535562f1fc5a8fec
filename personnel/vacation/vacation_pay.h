#pragma once

#include "personnel/pay/employer_dues.h"
#include "personnel/pay/income_tax.h"

#include <vector>

namespace winvrx {

struct VacationCase {
    Money salary = {};
    Money averages = {};  ///< of the acquisition period
    int days = 30;        ///< taken
    int soldDays = 0;     ///< turned into pay
    int doubledDays = 0;  ///< of those taken, past the limit of the concession
    int dependants = 0;
    Money alimony = {};
    Money privatePension = {};
    WorkMonth competence{};  ///< of the INSS: the month of enjoyment
    Date paid{};
    Money monthsIncome = {};  ///< where the reduction of the IRRF takes it in
    FgtsRate fgtsRate = FgtsRate::Usual;
};

/// Lines without an amount have no memo.
struct VacationPay {
    Reckoning vacation;
    Reckoning third;
    Reckoning sold;  ///< neither INSS nor IRRF nor FGTS
    Reckoning soldThird;
    Reckoning doubled;  ///< the doubled part with its third; no INSS (Lei 8.212, art. 28 par. 9 d)
    Money taxable;      ///< vacation + third
    Money gross;        ///< everything that is paid
    Reckoning inss;     ///< as if the month held nothing but the vacation
    IncomeTax tax;
    Reckoning fgts;
    Money net;
};
[[nodiscard]] VacationPay vacationPay(const PayrollLaw& law, const VacationCase& vacation);

/// A vacation's pay of two months by the days in each: what stands in the INSS of each month
/// (Decreto 3.048/1999, art. 214 par. 14). Nothing is lost by the division.
struct VacationShare {
    WorkMonth month{};
    int days = 0;
    Money amount;
};
[[nodiscard]] std::vector<VacationShare> sharesByMonth(Money pay, Date start, int days);

/// The INSS of a vacation's pay: of each month's share by itself, as it is withheld when the
/// vacation is paid. The month's own payroll withholds what its pay adds.
[[nodiscard]] Reckoning vacationInss(const PayrollLaw& law, Money taxable, Date start, int days);

}  // namespace winvrx
