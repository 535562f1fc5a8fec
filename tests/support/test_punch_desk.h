#pragma once

#include "tests/support/employee_desk.h"
#include "timecard/punches/list_application.h"

namespace winvrx::testing {

/// What the punches ask of other subjects, as the test has it.
struct TestPunchDesk {
    TestLocks locks;
    PunchDesk desk{locks, locks};
};

}  // namespace winvrx::testing
