#include "timecard/card/cell_block.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

void fuzz::tryBytes(std::string_view bytes) {
    const CellBlock block = parseCellBlock(bytes);
    require(block.empty() || parseCellBlock(textOf(block) + "\n") == block, "a block comes back");
    CardSheet sheet(blankMonth(2024y / 3));
    const std::string refusal = paste(sheet, 1, PunchCell::MorningEntry, block);
    require(refusal.empty() || !sheet.changed(), "a refused block changes nothing");
    while (sheet.undo()) {
    }
    require(!sheet.changed(), "a paste is taken back whole");
}
