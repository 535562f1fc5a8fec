#pragma once

#include "tests/support/employee_desk.h"
#include "timecard/punches/list_application.h"

namespace winvrx::testing {

/// Answers with the months that the test names.
struct TestRotations final : RotationCalendar {
    RotationMonths months;

    RotationMonths monthsOf(const CompanyCode&, WorkMonth) const override { return months; }
};

/// What the punches ask of other subjects, as the test has it.
struct TestPunchDesk {
    TestLocks locks;
    TestRotations rotations;
    PunchDesk desk{rotations, locks};
};

}  // namespace winvrx::testing
