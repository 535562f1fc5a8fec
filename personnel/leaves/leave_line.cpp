#include "personnel/leaves/leave_line.h"

#include "foundation/register/leave_file.h"
#include "personnel/leaves/leave_form.h"
#include "personnel/leaves/leave_types.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kStatusMark = "****";

std::filesystem::path pathOf(const Store& store, const EmployeeKey& key) {
    return store.folder.companyFile(key.company, leaveFileName(key.employee));
}

std::vector<std::string> linesOf(const Store& store, const EmployeeKey& key) {
    return splitLines(store.files.read(pathOf(store, key)).value_or(std::string()));
}

bool isSame(const std::string& line, const Leave& leave) {
    const auto stored = decodeLeave(line);
    return stored && leaveTypeOf(stored->type) == leaveTypeOf(leave.type) &&
           parseDate(stored->firstDay) == parseDate(leave.firstDay) &&
           parseDate(stored->lastDay) == parseDate(leave.lastDay);
}

}  // namespace

Leave vacationLeave(LeavePeriod period) {
    LeaveForm form;
    form.type(LeaveInput::Type, kVacationLeave);
    form.type(LeaveInput::FirstDay, dateText(period.first));
    form.type(LeaveInput::LastDay, dateText(period.last));
    return form.leave();
}

FileSystem::NewContent replacedLeave(const Store& store, const EmployeeKey& key,
                                     const std::optional<Leave>& out,
                                     const std::optional<Leave>& in) {
    auto lines = linesOf(store, key);
    for (const auto& leave : {out, in})
        if (leave)
            std::erase_if(lines, [&](const std::string& line) { return isSame(line, *leave); });
    auto status = std::ranges::find_if(
        lines, [](const std::string& line) { return line.starts_with(kStatusMark); });
    if (status == lines.end()) status = lines.insert(status, leaveStatusLine(std::nullopt));
    if (in) lines.insert(status, leaveLine(*in).bytes);
    return {pathOf(store, key), joinedLines(lines)};
}

}  // namespace winvrx
