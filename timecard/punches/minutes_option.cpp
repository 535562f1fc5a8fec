#include "timecard/punches/minutes_option.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr int kVaried = 1;

}  // namespace

Minutes loadMinutes(FileSystem& files, const DataFolder& folder) {
    const auto values = RecordFile(files, folder.file(kMinutesName)).values();
    if (values.empty()) return Minutes::Fixed;
    return parseWholeNumber(values.front(), kVaried, kVaried) ? Minutes::Varied : Minutes::Fixed;
}

void saveMinutes(FileSystem& files, const DataFolder& folder, Minutes minutes) {
    RecordFile(files, folder.file(kMinutesName))
        .rewriteValues({minutes == Minutes::Varied ? "1" : "0"});
}

}  // namespace winvrx
