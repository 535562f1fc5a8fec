#include "personnel/pay/employer_dues.h"

#include "personnel/pay/inss.h"

#include <algorithm>

namespace winvrx {

namespace {

using std::chrono::day;
using std::chrono::months;

constexpr day kDueDay{20};
constexpr int kEmployerPercent = 8;
constexpr int kFgtsPercent = 8;

/// Cents of the guide go as those of the INSS: one system bills them all.
Reckoning guideLine(const PayrollLaw& law, Money base, const Fraction& percent, std::string words) {
    const Sum sum = Sum(base).percent(percent);
    return law.settings.inssRounding == InssRounding::TruncatedBrackets
               ? sum.truncated(std::move(words))
               : sum.rounded(std::move(words));
}

}  // namespace

Reckoning fgts(const PayrollLaw& law, Money base, FgtsRate rate, std::string words) {
    const Sum sum = Sum(base).percent(static_cast<int>(rate));
    return law.settings.fgtsRounding == CentsRounding::Truncated ? sum.truncated(std::move(words))
                                                                 : sum.rounded(std::move(words));
}

Reckoning fgtsFine(Money account, int percent) {
    return Sum(account).percent(percent).rounded("Multa do FGTS");
}

Date duesDay(WorkMonth competence) {
    return (competence + months{1}) / kDueDay;
}

DomesticGuide domesticGuide(const PayrollLaw& law, Money base, WorkMonth competence) {
    const Money limited = std::min(base, law.tables.inss.at(firstDay(competence)).ceiling());
    DomesticGuide guide{inss(law, base, competence, "INSS do empregado"),
                        guideLine(law, limited, kEmployerPercent, "INSS do empregador"),
                        guideLine(law, limited, {8, 10}, "Seguro contra acidentes"),
                        guideLine(law, base, kFgtsPercent, "FGTS"),
                        guideLine(law, base, {32, 10}, "Reserva indenizatória"),
                        {},
                        duesDay(competence)};
    guide.total = guide.employee.amount + guide.employer.amount + guide.accident.amount +
                  guide.fgts.amount + guide.reserve.amount;
    return guide;
}

}  // namespace winvrx
