#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

class SafetyCopies;

/// The command of the main window that goes back to a safety copy. The arguments outlive it.
[[nodiscard]] MenuEntry restoreEntry(const Workplace& at, SafetyCopies& copies);

}  // namespace winvrx
