#pragma once

#include "foundation/register/leave_file.h"
#include "personnel/leaves/leave_form.h"

#include <cstddef>
#include <optional>
#include <string>

namespace winvrx {

/// What speaks against the text of a field of the leave screen, in a sentence; empty when nothing
/// does. `chosen` is the leave of the file that the fields show and that is not compared with them.
[[nodiscard]] std::string findingFor(LeaveInput input, const LeaveForm& form, const LeaveFile& file,
                                     std::optional<std::size_t> chosen);

}  // namespace winvrx
