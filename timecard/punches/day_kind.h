#pragma once

namespace winvrx {

/// What a day is by the contract, the calendar and its situation.
enum class DayKind { Work, Holiday, WeeklyRest, Leave, Absence, Excused, OutsideContract };

}  // namespace winvrx
