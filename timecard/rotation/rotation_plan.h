#pragma once

#include "timecard/rotation/rotation_group.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The arithmetic of the rotations: who works on which day. docs/rotation.md tells the rules with a
// worked month.
//
//     const RotationPlan plan = planOf(group, 2024y / 3);
//     plan.rows[0].days[4].turn     Turn::Off: the first of the list is off on the fifth

namespace winvrx {

/// Days from one day off to the next: six in 5 x 1, two in 12 x 36.
[[nodiscard]] int rhythmOf(Scale scale);

enum class Turn {
    Work,
    Off,
    Relief,  ///< a relief worker in place of whoever is off
    Away     ///< a working day on which he cannot work
};

struct PlannedDay {
    Turn turn = Turn::Work;
    std::optional<EmployeeCode> relieved = {};  ///< in whose place

    [[nodiscard]] bool operator==(const PlannedDay&) const = default;
};

struct PlanRow {
    EmployeeCode employee;
    bool relief = false;
    std::vector<PlannedDay> days;  ///< one for each day of the month

    [[nodiscard]] const PlannedDay& on(Date date) const {
        return days.at(static_cast<std::size_t>(dayNumber(date)) - 1);
    }
};

/// A group's month: first the list in its order, then the relief workers.
struct RotationPlan {
    WorkMonth month{};
    std::vector<PlanRow> rows;
    std::vector<int> working;  ///< how many work on each day
    int posts = 0;             ///< how many should

    [[nodiscard]] bool hasGap(std::size_t day) const { return working.at(day) < posts; }
    [[nodiscard]] const PlanRow* rowOf(const EmployeeCode& employee) const;
};

/// Whether an employee is not there on a day, whatever the rotation says.
using Absence = std::function<bool(const EmployeeCode& employee, Date date)>;

/// Every place is off one day after the one before it, and each every sixth day, in 12 x 36 every
/// other day, before the first day off as well as after it. Of two relief workers the first stands
/// in for the places one to three. Without a first day off everybody works.
[[nodiscard]] RotationPlan planOf(const RotationGroup& group, WorkMonth month,
                                  const Absence& absent = {});

/// "SEM FOLGUISTA", "DESCOBERTO": what is said of a gap.
[[nodiscard]] std::string_view gapWord(const RotationGroup& group);

/// The days from the month's first on, within one rhythm, on which nobody of the list and none of
/// the other relief workers is off: where relief worker `which` may begin. Empty without a first
/// day off of the list.
[[nodiscard]] std::vector<Date> freeForRelief(const RotationGroup& group, std::size_t which,
                                              WorkMonth month);

/// The group as it goes on in a later month: the same rhythm, the first days off moved into it.
[[nodiscard]] RotationGroup continued(RotationGroup group, WorkMonth month);

}  // namespace winvrx
