#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "output/cards/desktop/card_entries.h"

#include <string>

namespace winvrx {

class SafetyCopies;
class TextEditor;

/// The main window's commands, in the order of their tiles: each written in the room that owns its
/// screen. The arguments outlive the entries.
[[nodiscard]] MenuEntries menuEntries(const Workplace& at, const CardPrintingDesk& desk,
                                      TextEditor& editor, SafetyCopies& copies,
                                      const std::string& logFile);

}  // namespace winvrx
