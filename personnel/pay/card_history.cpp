#include "personnel/pay/card_history.h"

#include "foundation/files/payroll_file.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/punches/punch_record.h"

#include <algorithm>

namespace winvrx {

namespace {

bool isMarkedAbsent(const std::vector<HourPart>& parts) {
    return std::ranges::find(parts, HourRule::MarkedMissing, &HourPart::rule) != parts.end();
}

std::chrono::seconds missingIn(const std::vector<HourPart>& parts) {
    std::chrono::seconds sum{};
    for (const HourPart& part : parts)
        if (part.category == HourCategory::Missing) sum += part.length;
    return sum;
}

struct Average {
    HourBase base;
    int months;
};

Reckoning averageOf(const Reckoning& whole, int months, const char* words) {
    return following(whole.memo, Sum(whole.amount).over(months).rounded(words));
}

Reckoning overtimeOf(const PayrollLaw& law, const Average& of, const ExtraHours& hours) {
    Reckoning sum;
    if (hours.byDay.count() > 0)
        sum = overtimeAverage(law, of.base, hours.percent, hours.byDay, of.months);
    if (hours.byNight.count() > 0)
        sum = sum + averageOf(nightOvertimePay(law, of.base, hours.nightPercent, hours.byNight,
                                               "Horas extras noturnas dos meses"),
                              of.months, "Média de horas extras noturnas");
    return sum;
}

Reckoning nightOf(const PayrollLaw& law, const Average& of, std::chrono::seconds hours) {
    if (hours.count() <= 0) return {};
    return averageOf(nightPremium(law, of.base, hours), of.months, "Média do adicional noturno");
}

}  // namespace

LostTime lostTime(const EmployeeHours& hours) {
    LostTime lost;
    Date date = hours.period.first;
    for (const PunchLine& line : hours.lines) {
        const auto parts = dayParts(line, date, hours.terms);
        const auto missing = missingIn(parts);
        if (isMarkedAbsent(parts)) {
            lost.absences.push_back(date);
        } else if (missing.count() > 0) {
            lost.delays.push_back(date);
            lost.missing += missing;
        }
        date = plusDays(date, 1);
    }
    return lost;
}

const MonthSettings& SettingsByMonth::of(const Store& store, WorkMonth month) {
    const auto found = read_.find(month);
    if (found != read_.end()) return found->second;
    auto record = findMonthRecord(store, month);
    return read_
        .emplace(month, record ? std::move(record->settings)
                               : proposedSettings(month, offeredHolidays(store, month)))
        .first->second;
}

CardHistory loadCardHistory(const Store& store, const CompanyCode& company,
                            const Employee& employee, LeavePeriod span, SettingsByMonth& settings,
                            const FolderNames& names) {
    CardHistory history;
    const EmployeeKey key{company, employee.employeeCode().value()};
    for (WorkMonth month = monthOf(span.first); month <= monthOf(span.last);
         month += std::chrono::months{1}) {
        if (!names.contains(punchFileName(key, month))) continue;
        const auto hours = loadEmployeeHours(store, company, employee, settings.of(store, month),
                                             HoursPeriod::CalendarMonth);
        if (!hours) continue;
        for (const Date date : lostTime(*hours).absences)
            if (span.contains(date)) history.absences.push_back(date);
        if (names.contains(payrollFileName(key, month)))
            history.recorded.push_back(hours->totals());
    }
    return history;
}

Reckoning variablePayAverage(const PayrollLaw& law, const MonthPayCase& month,
                             const std::vector<HourTotals>& recorded) {
    if (recorded.empty()) return {};
    HourTotals all;
    for (const HourTotals& one : recorded)
        all += one;
    const RiskPay risk = wholeRiskPay(law, month);
    const int months = static_cast<int>(recorded.size());
    const Average overtime{{month.salary + risk.total(), month.divisor}, months};
    const Average night{{month.salary + risk.danger.amount, month.divisor}, months};
    ExtraHours minimum = month.minimum;
    ExtraHours maximum = month.maximum;
    minimum.byDay = all[HourCategory::ExtraMinimum];
    minimum.byNight = all[HourCategory::NightExtraMinimum];
    maximum.byDay = all[HourCategory::ExtraMaximum];
    maximum.byNight = all[HourCategory::NightExtraMaximum];
    return overtimeOf(law, overtime, minimum) + overtimeOf(law, overtime, maximum) +
           nightOf(law, night, all[HourCategory::NormalNight]);
}

}  // namespace winvrx
