#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <optional>

namespace winvrx {

/// Opens the leave screen, on `inHand` where an employee is chosen, and returns when it is closed.
void openLeaves(const Workplace& at, QWidget* parent,
                const std::optional<EmployeeCode>& inHand = std::nullopt);

/// The leaves' command of the main window.
[[nodiscard]] MenuEntry leavesEntry(const Workplace& at);

}  // namespace winvrx
