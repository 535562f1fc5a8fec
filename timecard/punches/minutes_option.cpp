#include "timecard/punches/minutes_option.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr int kVaried = 1;

}  // namespace

Minutes loadMinutes(const Store& store) {
    const auto values = RecordFile(store, kMinutesName).values();
    if (values.empty()) return Minutes::Fixed;
    return parseWholeNumber(values.front(), kVaried, kVaried) ? Minutes::Varied : Minutes::Fixed;
}

void saveMinutes(const Store& store, Minutes minutes) {
    RecordFile(store, kMinutesName).rewriteValues({minutes == Minutes::Varied ? "1" : "0"});
}

}  // namespace winvrx
