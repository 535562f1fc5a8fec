#include "fuzz/invariant.h"
#include "output/stocks/card_alignment.h"
#include "report/print_scale.h"

using namespace winvrx;
using fuzz::require;

namespace {

void tryOffsets(const Store& store) {
    const auto offsets = loadOffsets(store);
    require(offsets.size() == kAlignmentEntries, "each stock has an entry");
    for (const Offsets& one : offsets)
        require(0 <= one.vertical && one.vertical <= kGreatestOffset && 0 <= one.horizontal &&
                    one.horizontal <= kGreatestOffset,
                "an offset is within its bounds");
    const Offsets moved{.vertical = 30, .horizontal = 1500};
    saveOffsets(store, 3, moved);
    auto expected = offsets;
    expected[3] = moved;
    require(loadOffsets(store) == expected, "only one entry changes");
}

void tryScales(const Store& store) {
    const PrintScaleLine line{{"HP", "05"}, {.horizontalScale = 9900, .verticalOffset = -125}};
    require(isUsable(loadPrintScale(store, line.key)), "a scale is within bounds");
    savePrintScale(store, line);
    require(loadPrintScale(store, line.key) == line.scale, "a scale comes back");
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile scales(fuzz::kFolder.file(kPrintScaleName), bytes);
    for (const std::string& line : scales.before)
        if (const auto decoded = decodePrintScale(line))
            require(encode(*decoded, line) == line, "a line comes back");
    tryScales(scales.store);
    tryOffsets(fuzz::AnyFile(fuzz::kFolder.file(kAlignmentName), bytes).store);
}
