#pragma once

#include "timecard/punches/punch_record.h"

#include <string>

namespace winvrx {

/// Why the times of a day are doubtful, in one sentence: a pair that lacks a time or starts and
/// ends at once, an exit before its entry, pairs that overlap or stand in the wrong order. Empty
/// when nothing is. A pair or a day may run over midnight, for up to kLongestSpell hours.
[[nodiscard]] std::string doubtAbout(const PunchLine& line);

inline constexpr std::chrono::hours kLongestSpell{16};

}  // namespace winvrx
