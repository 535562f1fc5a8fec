#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "output/cards/desktop/card_entries.h"

#include <filesystem>
#include <memory>
#include <string>

namespace winvrx {

class BrowserSettings;
class SafetyCopies;
class TextEditor;
class WordProcessor;

/// What the main window's commands open things with. All outlive them.
struct MenuDesk {
    CardPrintingDesk printing;
    TextEditor& editor;
    WordProcessor& writer;
    SafetyCopies& copies;
    std::string logFile;
    std::filesystem::path programFolder;                  ///< has the delivered legal tables
    std::shared_ptr<BrowserSettings> browsers = nullptr;  ///< no screen for them without
};

/// The main window's commands, in the order of their tiles: each written in the room that owns its
/// screen.
[[nodiscard]] MenuEntries menuEntries(const Workplace& at, const MenuDesk& desk);

}  // namespace winvrx
