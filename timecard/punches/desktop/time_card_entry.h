#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

class Browser;

/// The time card's command of the main window.
[[nodiscard]] MenuEntry timeCardEntry(const Workplace& at, Browser& browser);

}  // namespace winvrx
