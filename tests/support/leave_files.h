#pragma once

#include "foundation/register/leave_record.h"

#include <string>
#include <vector>

namespace winvrx::testing {

[[nodiscard]] inline Leave leave(const char* type, const char* first, const char* last) {
    Leave leave;
    leave.type = type;
    leave.firstDay = first;
    leave.lastDay = last;
    return leave;
}

[[nodiscard]] inline Leave vacation(const char* first, const char* last) {
    return leave("006 FÉRIAS", first, last);
}

/// The bytes of a leave file; an empty day leaves the employee active.
[[nodiscard]] inline std::string leaveBytes(const std::vector<Leave>& leaves,
                                            const char* inactiveSince = "") {
    std::vector<std::string> lines;
    for (const Leave& one : leaves)
        lines.push_back(encode(one));
    lines.push_back(leaveStatusLine(parseDate(inactiveSince)));
    return joinedLines(lines);
}

}  // namespace winvrx::testing
