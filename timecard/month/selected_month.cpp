#include "timecard/month/selected_month.h"

#include "foundation/files/record_file.h"

namespace winvrx {

std::optional<SelectedMonth> loadSelectedMonth(FileSystem& files, const DataFolder& folder) {
    const auto values = RecordFile(files, folder.file(kSelectedMonthName)).values();
    if (values.empty()) return std::nullopt;
    const auto month = parseMonthKey(values[0]);
    if (!month) return std::nullopt;
    const auto filter = values.size() > 1 ? parseShiftFilter(values[1]) : std::nullopt;
    return SelectedMonth{*month, filter.value_or(ShiftFilter::Todos)};
}

void saveSelectedMonth(FileSystem& files, const DataFolder& folder, const SelectedMonth& selected) {
    RecordFile(files, folder.file(kSelectedMonthName))
        .rewriteValues({monthKey(selected.month), std::string(codeOf(selected.shiftFilter))});
}

}  // namespace winvrx
