#include "personnel/pay/income_tax.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr Money kWaivedUpTo{1000};  // Lei 9.430/1996, art. 67

struct Deduction {
    Money amount;
    bool isSimplified = false;
    Memo memo = {};
};

Deduction legalDeductions(const PayrollLaw& law, const IncomeTaxCase& payment) {
    const Money each = law.tables.dependant.at(payment.paid).amount;
    Memo memo;
    Money dependants;
    if (payment.dependants > 0) {
        const Reckoning all =
            Sum(each).times(payment.dependants).rounded("Dedução por dependentes");
        dependants = all.amount;
        memo = all.memo;
    }
    const Reckoning sum = Sum({payment.inss, dependants, payment.alimony, payment.privatePension})
                              .rounded("Deduções legais");
    append(memo, sum.memo);
    return {sum.amount, false, memo};
}

/// The larger of the legal deductions and the simplified discount (Lei 9.250/1995, art. 4º par. 2).
Deduction deductionOf(const PayrollLaw& law, const IncomeTaxCase& payment) {
    Deduction legal = legalDeductions(law, payment);
    const bool isAllowed =
        payment.kind != TaxedIncome::Thirteenth || law.settings.simplifiedDiscountOnThirteenth;
    const Money simplified = law.tables.simplifiedDiscount.at(payment.paid).amount;
    if (!isAllowed || simplified <= legal.amount) return legal;
    legal.memo.push_back({"Desconto simplificado, maior que as deduções", moneyText(simplified)});
    return {simplified, true, legal.memo};
}

Reckoning tableTax(const IncomeTaxTable& table, Money base) {
    const auto bracket =
        std::ranges::find_if(table.brackets, [&](const Bracket& one) { return base <= one.top; });
    if (bracket == table.brackets.begin())
        return {{}, {{"Imposto pela tabela", "base isenta até " + moneyText(bracket->top)}}};
    const Reckoning tax = Sum(base)
                              .percent(bracket->rate)
                              .minus(bracket->deduction)
                              .rounded("Imposto pela tabela desde " + dateText(table.from));
    return {atLeastZero(tax.amount), tax.memo};
}

Money reductionIncome(const PayrollLaw& law, const IncomeTaxCase& payment) {
    const bool isTogether = payment.kind == TaxedIncome::Vacation &&
                            law.settings.vacationReduction == VacationReduction::WithMonth;
    return isTogether ? payment.income + payment.monthsIncome : payment.income;
}

Reckoning reductionOf(const TaxReduction* rule, Money income, Money tax) {
    if (rule == nullptr || tax.cents == 0 || income > rule->upTo) return {};
    if (income <= rule->fullUpTo)
        return {std::min(tax, rule->most),
                {{"Redução para renda até " + moneyText(rule->fullUpTo),
                  moneyText(std::min(tax, rule->most))}}};
    const Money byRule{roundedHalfUp(Fraction(rule->start) - rule->rate * Fraction(income))};
    const Money reduction = std::min(tax, atLeastZero(byRule));
    std::string figures = moneyText(rule->start) + " − " + exactText(rule->rate) + " × " +
                          moneyText(income) + " = " + moneyText(atLeastZero(byRule));
    if (reduction < byRule) figures += ", no máximo o imposto";
    return {reduction, {{"Redução", figures}}};
}

}  // namespace

IncomeTax incomeTax(const PayrollLaw& law, const IncomeTaxCase& payment) {
    IncomeTax result;
    Deduction deduction = deductionOf(law, payment);
    result.isSimplified = deduction.isSimplified;
    result.memo = std::move(deduction.memo);

    const Reckoning base = Sum(payment.income).minus(deduction.amount).rounded("Base do IRRF");
    result.base = atLeastZero(base.amount);
    result.memo.push_back(base.amount.cents < 0 ? MemoLine{"Base do IRRF", moneyText({})}
                                                : base.memo.front());

    const Reckoning tax = tableTax(law.tables.incomeTax.at(payment.paid), result.base);
    result.tableTax = tax.amount;
    append(result.memo, tax.memo);

    const Reckoning reduction = reductionOf(law.tables.taxReduction.find(payment.paid),
                                            reductionIncome(law, payment), result.tableTax);
    result.reduction = reduction.amount;
    append(result.memo, reduction.memo);

    result.due = result.tableTax - result.reduction;
    const bool isWaived = law.settings.taxOfTenRealsIsWaived && result.due <= kWaivedUpTo &&
                          payment.kind != TaxedIncome::Thirteenth;
    result.withheld = isWaived ? Money{} : result.due;
    if (isWaived && result.due.cents > 0)
        result.memo.push_back(
            {"Dispensado, até 10,00 (Lei 9.430/1996, art. 67)", moneyText(result.due)});
    result.memo.push_back({"IRRF", moneyText(result.withheld)});
    return result;
}

}  // namespace winvrx
