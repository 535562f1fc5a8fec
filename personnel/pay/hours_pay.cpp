#include "personnel/pay/hours_pay.h"

namespace winvrx {

namespace {

constexpr int kUrbanPercent = 20;
constexpr int kRuralPercent = 25;
constexpr int kMinutesAnHour = 60;

Sum hourSum(const PayrollLaw& law, const HourBase& base) {
    Sum hour = Sum(base.pay).over(base.divisor);
    return law.settings.hourIsRounded ? std::move(hour).inCents() : hour;
}

Fraction withPercent(int percent) {
    return {100 + percent, 100};
}

int nightPercent(const PayrollLaw& law) {
    return law.settings.nightWork == NightWork::Rural ? kRuralPercent : kUrbanPercent;
}

Sum nightSum(const PayrollLaw& law, Sum sum, std::chrono::seconds clock) {
    const bool isReduced =
        law.settings.nightHourIsReduced && law.settings.nightWork == NightWork::Urban;
    sum = std::move(sum).hours(clock);
    return isReduced ? std::move(sum).times(kMinutesAnHour).over({105, 2}) : sum;
}

}  // namespace

Fraction hourValue(const PayrollLaw& law, const HourBase& base) {
    return hourSum(law, base).value();
}

Fraction nightHours(const PayrollLaw& law, std::chrono::seconds clock) {
    return nightSum(law, Sum(Money{1}), clock).value();
}

Reckoning overtimePay(const PayrollLaw& law, const HourBase& base, int percent,
                      std::chrono::seconds worked, std::string words) {
    return hourSum(law, base).times(withPercent(percent)).hours(worked).rounded(std::move(words));
}

Reckoning nightPremium(const PayrollLaw& law, const HourBase& base, std::chrono::seconds clock) {
    return nightSum(law, hourSum(law, base).percent(nightPercent(law)), clock)
        .rounded("Adicional noturno");
}

Reckoning nightOvertimePay(const PayrollLaw& law, const HourBase& base, int percent,
                           std::chrono::seconds clock, std::string words) {
    Sum sum = hourSum(law, base).times(withPercent(percent)).times(withPercent(nightPercent(law)));
    return nightSum(law, std::move(sum), clock).rounded(std::move(words));
}

Reckoning timeLost(const PayrollLaw& law, const HourBase& base, std::chrono::seconds time) {
    if (time <= std::chrono::seconds::zero()) return {};
    return hourSum(law, base).hours(time).rounded("Horas de atraso e falta");
}

Reckoning restReflex(std::initializer_list<Money> variablePay, int businessDays, int restDays) {
    const Sum variable(variablePay);
    if (businessDays <= 0 || variable.value() == Fraction(0)) return {};
    return Sum(variable).over(businessDays).times(restDays).rounded("Reflexo no DSR");
}

Reckoning overtimeAverage(const PayrollLaw& law, const HourBase& base, int percent,
                          std::chrono::seconds hours, int months) {
    return hourSum(law, base)
        .times(withPercent(percent))
        .hours(hours)
        .over(months)
        .rounded("Média de horas extras");
}

}  // namespace winvrx
