#include "personnel/pay/inss.h"

#include <algorithm>

namespace winvrx {

namespace {

Fraction shareOf(Money part, const Bracket& bracket) {
    return Fraction(part) * bracket.rate / Fraction(100);
}

/// "121,575": an amount in cents that may have more digits.
std::string reaisText(const Fraction& cents) {
    const Fraction reais = cents / Fraction(100);
    return reais == Fraction(truncated(cents), 100) ? moneyText({truncated(cents)})
                                                    : exactText(reais);
}

}  // namespace

Reckoning inss(const PayrollLaw& law, Money base, WorkMonth competence, std::string_view words) {
    const InssTable& table = law.tables.inss.at(firstDay(competence));
    const bool truncates = law.settings.inssRounding == InssRounding::TruncatedBrackets;
    const Money limited = std::min(atLeastZero(base), table.ceiling());
    Memo memo;
    if (limited < base)
        memo.push_back({"Base do " + std::string(words), "teto de " + moneyText(limited)});
    Fraction total;
    std::string terms;
    Money below;
    for (const Bracket& bracket : table.brackets) {
        const Money part = atLeastZero(std::min(limited, bracket.top) - below);
        below = bracket.top;
        if (part.cents == 0) continue;
        const Fraction share = shareOf(part, bracket);
        const Fraction kept = truncates ? Fraction(truncated(share)) : share;
        memo.push_back({"Faixa até " + moneyText(bracket.top),
                        Sum(part).percent(bracket.rate).text() + " = " + reaisText(share)});
        total = total + kept;
        terms += (terms.empty() ? "" : " + ") + reaisText(kept);
    }
    const Money amount{roundedHalfUp(total)};
    const std::string result = moneyText(amount);
    memo.push_back(
        {std::string(words), terms.empty() || terms == result ? result : terms + " = " + result});
    return {amount, memo};
}

}  // namespace winvrx
