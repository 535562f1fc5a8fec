#include "output/print_settings.h"

#include "foundation/record_file.h"

#include <algorithm>
#include <charconv>

namespace winvrx {

namespace {

constexpr Column kVertical{1, 10};
constexpr Column kHorizontal{11, 20};
constexpr std::string_view kDefaultPrinter = "Padrao";

int offsetIn(std::string_view lineBytes, Column column) {
    const std::string text = fieldOf(lineBytes, column);
    int offset = kDefaultOffset;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), offset);
    if (error != std::errc() || end != text.data() + text.size()) return kDefaultOffset;
    return std::clamp(offset, 0, kGreatestOffset);
}

}  // namespace

Alignment loadAlignment(FileSystem& files, const DataFolder& folder) {
    const auto lines = RecordFile(files, folder.file(kAlignmentName)).lines();
    const std::string first = lines.empty() ? std::string() : lines.front();
    return {.horizontalTwips = offsetIn(first, kHorizontal),
            .verticalTwips = offsetIn(first, kVertical)};
}

std::string loadPrinterName(FileSystem& files, const DataFolder& folder) {
    const auto values = RecordFile(files, folder.file(kPrinterName)).values();
    return values.empty() || values.front() == kDefaultPrinter ? std::string() : values.front();
}

}  // namespace winvrx
