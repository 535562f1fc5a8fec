#include "fuzz/invariant.h"
#include "output/stocks/card_alignment.h"
#include "report/print_scale.h"

using namespace winvrx;
using fuzz::require;

namespace {

void tryOffsets(testing::MemoryFiles& files) {
    const auto offsets = loadOffsets({files, fuzz::kFolder});
    require(offsets.size() == kAlignmentEntries, "each stock has an entry");
    for (const Offsets& one : offsets)
        require(0 <= one.vertical && one.vertical <= kGreatestOffset && 0 <= one.horizontal &&
                    one.horizontal <= kGreatestOffset,
                "an offset is within its bounds");
    const Offsets moved{.vertical = 30, .horizontal = 1500};
    saveOffsets({files, fuzz::kFolder}, 3, moved);
    auto expected = offsets;
    expected[3] = moved;
    require(loadOffsets({files, fuzz::kFolder}) == expected, "only one entry changes");
}

void tryScales(testing::MemoryFiles& files) {
    const PrintScaleLine line{{"HP", "05"}, {.horizontalScale = 9900, .verticalOffset = -125}};
    require(isUsable(loadPrintScale({files, fuzz::kFolder}, line.key)), "a scale is within bounds");
    savePrintScale({files, fuzz::kFolder}, line);
    require(loadPrintScale({files, fuzz::kFolder}, line.key) == line.scale, "a scale comes back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    const std::string text(fuzz::textOf(data, size));
    files.content[fuzz::kFolder.file(kAlignmentName)] = text;
    files.content[fuzz::kFolder.file(kPrintScaleName)] = text;
    for (const std::string& line : splitLines(text))
        if (const auto decoded = decodePrintScale(line))
            require(encode(*decoded, line) == line, "a line comes back");
    tryOffsets(files);
    tryScales(files);
    return 0;
}
