#pragma once

#include "foundation/files/data_folder.h"

namespace winvrx {

/// "Minutos Fixos": every day gets exactly the standard times. "Minutos Variados": they vary by a
/// few minutes from day to day.
enum class Minutes { Fixed, Varied };

inline constexpr std::string_view kMinutesName = "MinFixVar";

/// The choice of the whole installation: the record `MinFixVar`, one line with a number, 1 for
/// varied minutes. Anything else, or no file, means fixed ones.
[[nodiscard]] Minutes loadMinutes(const Store& store);
void saveMinutes(const Store& store, Minutes minutes);

}  // namespace winvrx
