#include "foundation/register/leave_file.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

std::optional<std::size_t> LeaveFile::termination() const {
    for (std::size_t after = leaves.size(); after > 0; --after)
        if (leaves[after - 1].record.isTermination()) return after - 1;
    return std::nullopt;
}

StoredLine<Leave> leaveLine(const Leave& leave, std::string existing) {
    std::string bytes = encode(leave, std::move(existing));
    // An hour of the homologation that went leaves no blanks behind.
    while (bytes.size() > kLeaveWidth && bytes.back() == ' ')
        bytes.pop_back();
    return lineFrom<Leave>(std::move(bytes));
}

LeaveFile parseLeaveFile(std::string_view bytes) {
    LeaveFile file;
    for (std::string& line : splitLines(bytes)) {
        if (decodeLeave(line)) {
            file.leaves.push_back(lineFrom<Leave>(std::move(line)));
            continue;
        }
        const bool isStatus = line.starts_with(leaveStatusLine(std::nullopt).substr(0, 4));
        if (isStatus) file.inactiveSince = inactiveSince(line);
        const bool isUnderstood =
            isStatus && trimmed(line) == trimmed(leaveStatusLine(inactiveSince(line)));
        if (!isUnderstood && !trimmed(line).empty()) file.strays.push_back(std::move(line));
    }
    return file;
}

std::string encode(const LeaveFile& file) {
    std::vector<std::string> lines;
    for (const auto& leave : file.leaves)
        lines.push_back(leave.bytes);
    lines.push_back(leaveStatusLine(file.inactiveSince));
    return joinedLines(lines);
}

LeaveFile loadLeaveFile(const Store& store, const EmployeeKey& key) {
    const auto path = store.folder.companyFile(key.company, leaveFileName(key.employee));
    return parseLeaveFile(store.files.read(path).value_or(std::string()));
}

std::array<std::string, kTerminationStems.size()> terminationFileNames(const EmployeeKey& key) {
    std::array<std::string, kTerminationStems.size()> names;
    std::ranges::transform(kTerminationStems, names.begin(), [&](std::string_view stem) {
        return key.company.text() + std::string(stem) + key.employee.text();
    });
    return names;
}

}  // namespace winvrx
