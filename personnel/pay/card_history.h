#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/register/employee.h"
#include "personnel/pay/month_pay.h"
#include "timecard/hours/employee_hours.h"
#include "timecard/month/month_settings.h"

#include <map>
#include <vector>

// What the cards of many months say: absences, on which twelfths and days of vacation depend, and
// the hours whose average a 13th salary and a vacation are paid by.

namespace winvrx {

/// Days marked as absences, and the time that other days lack.
struct LostTime {
    std::vector<Date> absences;
    std::vector<Date> delays;
    std::chrono::seconds missing{};
};
[[nodiscard]] LostTime lostTime(const EmployeeHours& hours);

/// The settings of months, each read once, when it is asked for. A month without a record has those
/// that it is offered.
class SettingsByMonth {
  public:
    /// Throws FileFault.
    [[nodiscard]] const MonthSettings& of(const Store& store, WorkMonth month);

  private:
    std::map<WorkMonth, MonthSettings> read_;
};

struct CardHistory {
    std::vector<Date> absences;        ///< unjustified, of every month with a card
    std::vector<HourTotals> recorded;  ///< of the months whose payroll is recorded
};
/// From `first` to `last`, both included. Throws FileFault.
[[nodiscard]] CardHistory loadCardHistory(const Store& store, const CompanyCode& company,
                                          const Employee& employee, LeavePeriod span,
                                          SettingsByMonth& settings, const FolderNames& names);

/// What overtime and night work of the recorded months add to a month's salary: by quantity, at the
/// value and rates that `month` has (Súmulas 347 and 60 of the TST). Nothing where none is
/// recorded.
[[nodiscard]] Reckoning variablePayAverage(const PayrollLaw& law, const MonthPayCase& month,
                                           const std::vector<HourTotals>& recorded);

}  // namespace winvrx
