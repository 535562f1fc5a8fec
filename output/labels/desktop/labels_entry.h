#pragma once

#include "output/cards/desktop/card_entries.h"

namespace winvrx {

/// The labels' command of the main window.
[[nodiscard]] MenuEntry labelsEntry(const Workplace& at, const CardPrintingDesk& desk);

}  // namespace winvrx
