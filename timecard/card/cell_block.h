#pragma once

#include "timecard/card/card_sheet.h"

#include <string>
#include <string_view>
#include <vector>

// Blocks of cells as spreadsheets exchange them: rows ended by line breaks, cells parted by tabs, a
// cell in quotes when it holds either of them or a quote.

namespace winvrx {

using CellBlock = std::vector<std::vector<std::string>>;

/// One blank line at the end is none.
[[nodiscard]] CellBlock parseCellBlock(std::string_view text);
[[nodiscard]] std::string textOf(const CellBlock& block);

/// Puts the block into the sheet, its first cell at `day` and `cell`, as one edit. Times may carry
/// seconds of zero. What a cell cannot take stands there with its finding. Returns why the block
/// has no place, and then changes nothing; empty when it was put in.
[[nodiscard]] std::string paste(CardSheet& sheet, int day, PunchCell cell, const CellBlock& block);

}  // namespace winvrx
