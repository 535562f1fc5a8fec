#pragma once

#include "app/screens.h"
#include "foundation/menu/desktop/menu_entry.h"

#include <vector>

namespace winvrx {

/// The table of the main window's commands: what each is called, where it stands and what it
/// opens. Both arguments outlive the entries.
[[nodiscard]] std::vector<MenuEntry> menuEntries(Menu& menu, Screens& screens);

}  // namespace winvrx
