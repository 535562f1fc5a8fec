#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <memory>

namespace winvrx {

class RotationMembership;
class TextEditor;

/// The registers' commands of the main window: companies, employees, shifts. The arguments outlive
/// the entries.
[[nodiscard]] MenuEntries registerEntries(const Workplace& at, TextEditor& editor,
                                          std::shared_ptr<const RotationMembership> rotation);

}  // namespace winvrx
