#include "personnel/payroll/sheet_dues.h"

namespace winvrx {

namespace {

constexpr int kEmployerPercent = 20;

}  // namespace

SheetDues sheetDues(const PayrollLaw& law, const PaySheet& sheet, WorkMonth month,
                    const PayrollFacts& facts) {
    if (law.settings.isDomesticEmployer) {
        const DomesticGuide guide = domesticGuide(law, sheet.base, month);
        return {guide.fgts + guide.reserve, guide.employer + guide.accident, guide};
    }
    const FgtsRate rate = facts.isApprentice ? FgtsRate::Apprentice : FgtsRate::Usual;
    SheetDues dues{fgts(law, sheet.fgtsBase, rate), {}};
    if (law.settings.employerInss == EmployerInss::Percent)
        dues.employerInss =
            Sum(sheet.fgtsBase).percent(kEmployerPercent).rounded("INSS do empregador");
    return dues;
}

NamedAmounts namedAmounts(const PaySheet& sheet, const SheetDues& dues) {
    NamedAmounts named = {{"Base de INSS e IRRF", sheet.base}, {"Base do FGTS", sheet.fgtsBase}};
    if (!dues.guide) {
        named.emplace_back("FGTS", dues.fgts.amount);
        if (dues.employerInss.amount.cents > 0)
            named.emplace_back("INSS do empregador", dues.employerInss.amount);
        return named;
    }
    const DomesticGuide& guide = *dues.guide;
    for (const auto& [name, line] :
         {std::pair("INSS do empregado", &guide.employee), std::pair("INSS 8%", &guide.employer),
          std::pair("Acidentes 0,8%", &guide.accident), std::pair("FGTS 8%", &guide.fgts),
          std::pair("Reserva 3,2%", &guide.reserve)})
        named.emplace_back(name, line->amount);
    named.emplace_back("DAE até " + dateText(guide.due), guide.total);
    return named;
}

}  // namespace winvrx
