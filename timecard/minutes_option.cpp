#include "timecard/minutes_option.h"

#include "foundation/record_file.h"

#include <charconv>

namespace winvrx {

namespace {

constexpr int kVaried = 1;

}  // namespace

Minutes loadMinutes(FileSystem& files, const DataFolder& folder) {
    const auto values = RecordFile(files, folder.file(kMinutesName)).values();
    if (values.empty()) return Minutes::Fixed;
    const std::string& text = values.front();
    int number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = fault == std::errc() && end == text.data() + text.size();
    return whole && number == kVaried ? Minutes::Varied : Minutes::Fixed;
}

void saveMinutes(FileSystem& files, const DataFolder& folder, Minutes minutes) {
    RecordFile(files, folder.file(kMinutesName))
        .rewriteValues({minutes == Minutes::Varied ? "1" : "0"});
}

}  // namespace winvrx
