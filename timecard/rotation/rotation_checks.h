#pragma once

#include "timecard/rotation/rotation_plan.h"

#include <optional>
#include <string>
#include <vector>

// What is told of a plan and never forced: Sundays at work, and rests that come too early or too
// late after the month before.

namespace winvrx {

/// Sundays worked one after the other. CLT, art. 386 wants every second one off for women, Lei
/// 10.101/2000, art. 6º at least every third in commerce. The register knows neither sex nor trade.
struct SundayRun {
    EmployeeCode employee;
    int worked = 0;  ///< the most in a row, those before the month included
    Date last{};     ///< of them, in the month

    [[nodiscard]] bool breaksEverySecond() const { return worked >= 2; }
    [[nodiscard]] bool breaksEveryThird() const { return worked >= 3; }
};

/// The employees of whom one of the rules is broken in the month. Sundays before the month go by
/// the same rhythm.
[[nodiscard]] std::vector<SundayRun> sundayRuns(const RotationGroup& group, WorkMonth month);

/// Who works more or fewer days than his rhythm has between his last day off of the month before
/// and his first one of this month.
struct BrokenRhythm {
    EmployeeCode employee;
    int worked = 0;  ///< days between the two
    int wanted = 0;
};

/// `before` are the groups of the month before; who was in none of them has no rhythm to break.
[[nodiscard]] std::vector<BrokenRhythm> brokenRhythms(const std::vector<RotationGroup>& before,
                                                      const RotationGroup& group, WorkMonth month);

/// Why a list of this length has too few or too many relief workers, in one sentence; nullopt when
/// it has not.
[[nodiscard]] std::optional<std::string> reliefCountFinding(const RotationGroup& group);

/// Why the relief workers' days off do not fit the list, in one sentence; nullopt when they do.
/// Presumes that they are given.
[[nodiscard]] std::optional<std::string> reliefFinding(const RotationGroup& group, WorkMonth month);

}  // namespace winvrx
