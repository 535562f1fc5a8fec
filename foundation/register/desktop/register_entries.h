#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

class TextEditor;

/// The registers' commands of the main window: companies, employees, shifts. The arguments outlive
/// the entries.
[[nodiscard]] MenuEntries registerEntries(const Workplace& at, TextEditor& editor);

}  // namespace winvrx
