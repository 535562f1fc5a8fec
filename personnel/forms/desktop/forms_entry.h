#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

class ReportEngine;

/// The reports' command of the main window. The engine outlives the entry.
[[nodiscard]] MenuEntry formsEntry(const Workplace& at, ReportEngine& engine);

}  // namespace winvrx
