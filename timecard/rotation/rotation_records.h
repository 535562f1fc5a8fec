#pragma once

#include "foundation/register/employee_queries.h"
#include "foundation/values/clock.h"
#include "timecard/punches/rotation_calendar.h"
#include "timecard/rotation/rotation_plan.h"

#include <vector>

namespace winvrx {

/// The days of these groups with the times of the company's work-time tables.
[[nodiscard]] RotationMonths monthsOf(const Store& store, const CompanyCode& company,
                                      WorkMonth month, const std::vector<RotationGroup>& groups);

/// Answers from the groups on record. A member counts from the chosen work month on, or today's
/// where that is earlier or none is chosen: the groups of months past bind nobody.
class RotationRecords final : public RotationMembership, public RotationCalendar {
  public:
    RotationRecords(const Store& store, const Clock& clock) : store_(store), clock_(clock) {}

    [[nodiscard]] bool isMember(const EmployeeKey& key) const override;
    void removeMember(const EmployeeKey& key) const override;
    [[nodiscard]] RotationMonths monthsOf(const CompanyCode& company,
                                          WorkMonth month) const override;

  private:
    Store store_;
    const Clock& clock_;
};

}  // namespace winvrx
