#pragma once

#include "foundation/values/codes.h"
#include "foundation/values/date.h"
#include "timecard/schedule/standard_schedule.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// An employee's month as a rotation has it.
struct RotationMonth {
    /// One for each day: the times of a working day, nullopt for a day off.
    std::vector<std::optional<DaySchedule>> days;
    DaySchedule weekday;  ///< what his hours are compared with, Monday to Friday
    DaySchedule saturday;
    std::string finding = {};  ///< why it cannot be applied, in one sentence; empty when it can
};

using RotationMonths = std::map<EmployeeCode, RotationMonth>;

/// Asked of the rotation schedules by the application of punches.
class RotationCalendar {
  public:
    virtual ~RotationCalendar() = default;
    /// The months of all who are in a group of that month. Throws FileFault.
    [[nodiscard]] virtual RotationMonths monthsOf(const CompanyCode& company,
                                                  WorkMonth month) const = 0;
};

}  // namespace winvrx
