#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

/// Opens the work month's screen and returns when it is closed.
void openWorkMonth(const Workplace& at, QWidget* parent);

/// The work month's command of the main window.
[[nodiscard]] MenuEntry monthEntry(const Workplace& at);

}  // namespace winvrx
