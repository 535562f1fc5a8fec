#pragma once

#include "foundation/values/date.h"
#include "foundation/values/input_checks.h"

#include <optional>
#include <string>
#include <string_view>

// A time of day as hands write it: "8", "800", "0800", "8:0", "8:00", "8,30" or "8.30". After a
// comma or a point stand both digits of the minutes, since "8,5" may be five past eight or half.

namespace winvrx {

/// nullopt for what is no time, the blank included.
[[nodiscard]] std::optional<TimeOfDay> parseTypedTime(std::string_view text);

/// Why a text is no time, in one sentence; empty for a time and for the blank.
[[nodiscard]] std::string typedTimeFinding(std::string_view text);

/// Whether more typing can still make a time of the text.
[[nodiscard]] bool mayBecomeTime(std::string_view text);

/// A typed time as "hh:mm"; what is no time comes back as it is.
[[nodiscard]] std::string completedTime(std::string_view typed);

/// Brought into its form when it is left; the panel around it says what is no time.
inline constexpr FieldKind kTimeField{.completed = completedTime, .shape = FieldKind::Shape::Time};

}  // namespace winvrx
