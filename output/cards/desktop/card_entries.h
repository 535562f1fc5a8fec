#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace winvrx {

class Browser;
class Printers;
class ReportEngine;

/// What printing works with beside the desk. All outlive the entries.
struct CardPrintingDesk {
    Browser& browser;
    ReportEngine& engine;
    Printers& printers;
    std::function<std::vector<std::filesystem::path>()> layoutFolders;
};

/// The card printing's commands of the main window: to paper, and seen first.
[[nodiscard]] MenuEntries cardEntries(const Workplace& at, const CardPrintingDesk& desk);

}  // namespace winvrx
