#pragma once

#include "foundation/values/money.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// Where neither law nor practice leaves one way, a company says how it computes. The first value of
// each is the usual one. docs/payroll.md tells the sources.

namespace winvrx {

enum class InssRounding {
    TruncatedBrackets,  ///< each bracket cut to cents, as eSocial bills it
    RoundedOnce         ///< the exact sum, half up
};
enum class PartialMonth {
    CalendarDays,    ///< days of the calendar ÷ 30, at most the whole salary
    CommercialDays,  ///< a month of 30 days, whatever its length
    MonthLength      ///< days of the calendar ÷ days of the month
};
enum class VacationReduction {
    Apart,     ///< by the vacation's own income
    WithMonth  ///< by the vacation's income and the month's together
};
enum class CentsRounding { HalfUp, Truncated };
enum class UnhealthyBase { MinimumWage, Salary };
enum class NightWork {
    Urban,  ///< 20%
    Rural   ///< 25%, never with the reduced hour
};
enum class FirstInstalment {
    YearsTwelfths,  ///< half of what the year will give
    TwelfthsSoFar   ///< half of the twelfths that are full by then
};
enum class EmployerInss {
    None,    ///< in the Simples Nacional it is in the one tax of the company
    Percent  ///< 20% of the payroll (Lei 8.212/1991, art. 22 I)
};
enum class PaymentTerm { FromLastDayWorked, FromProjectedEnd };

struct PayrollSettings {
    InssRounding inssRounding = InssRounding::TruncatedBrackets;
    PartialMonth partialMonth = PartialMonth::CalendarDays;
    bool taxOfTenRealsIsWaived = true;
    bool simplifiedDiscountOnThirteenth = true;
    VacationReduction vacationReduction = VacationReduction::Apart;
    bool doubledVacationIsTaxed = false;
    bool hourIsRounded = false;
    NightWork nightWork = NightWork::Urban;
    bool nightHourIsReduced = true;
    bool unhealthyPayIsInNightBase = false;
    bool nightPremiumIsInOvertimeBase = false;
    UnhealthyBase unhealthyBase = UnhealthyBase::MinimumWage;
    bool saturdayIsWorkingDay = true;
    bool delayLosesWeeklyRest = false;
    bool voucherFollowsDaysWorked = true;
    FirstInstalment firstInstalment = FirstInstalment::YearsTwelfths;
    bool inssOnPaidNotice = false;
    bool inssOnNoticeTwelfths = true;
    PaymentTerm paymentTerm = PaymentTerm::FromLastDayWorked;
    CentsRounding fgtsRounding = CentsRounding::HalfUp;
    bool isDomesticEmployer = false;
    EmployerInss employerInss = EmployerInss::None;

    [[nodiscard]] bool operator==(const PayrollSettings&) const = default;
};

/// A setting as the screen and the company's record see it: a choice of a few texts.
struct PayrollSetting {
    std::string_view key;  ///< in the record
    std::string_view title;
    std::string_view effect;                    ///< one line: what it changes
    std::span<const std::string_view> choices;  ///< by the number of the value
    std::size_t (*value)(const PayrollSettings& settings);
    void (*choose)(PayrollSettings& settings, std::size_t choice);
};

/// All of them, in the order of the computation.
[[nodiscard]] std::span<const PayrollSetting> payrollSettings();

/// "inss = 1", a line a setting.
[[nodiscard]] std::string settingLine(const PayrollSetting& setting,
                                      const PayrollSettings& settings);
/// False, and nothing taken, for a line that names no setting or no choice of it.
[[nodiscard]] bool takeSettingLine(PayrollSettings& settings, std::string_view line);

}  // namespace winvrx
