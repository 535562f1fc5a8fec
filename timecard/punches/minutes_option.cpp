#include "timecard/punches/minutes_option.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

namespace winvrx {

Minutes loadMinutes(const Store& store) {
    const auto values = RecordFile(store, kMinutesName).values();
    const bool varied = !values.empty() && parseWholeNumber(values.front(), 1, 1);
    return varied ? Minutes::Varied : Minutes::Fixed;
}

void saveMinutes(const Store& store, Minutes minutes) {
    RecordFile(store, kMinutesName).rewriteValues({minutes == Minutes::Varied ? "1" : "0"});
}

}  // namespace winvrx
