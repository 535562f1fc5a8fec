#include "timecard/card/cell_block.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CellBlock block = parseCellBlock(fuzz::textOf(data, size));
    require(block.empty() || parseCellBlock(textOf(block) + "\n") == block, "a block comes back");
    CardSheet sheet(blankMonth(2024y / 3));
    const std::string refusal = paste(sheet, 1, PunchCell::MorningEntry, block);
    require(refusal.empty() || !sheet.changed(), "a refused block changes nothing");
    while (sheet.undo()) {
    }
    require(!sheet.changed(), "a paste is taken back whole");
    return 0;
}
