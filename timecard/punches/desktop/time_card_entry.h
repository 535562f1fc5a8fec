#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

/// The time card's command of the main window.
[[nodiscard]] MenuEntry timeCardEntry(const Workplace& at);

}  // namespace winvrx
