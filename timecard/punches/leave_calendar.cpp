#include "timecard/punches/leave_calendar.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr Column kTypeCode{1, 3};
constexpr Column kFirstDay{31, 10};
constexpr Column kLastDay{43, 10};

bool isLeave(const std::string& line) {
    const std::string code = rawFieldOf(line, kTypeCode);
    return std::all_of(code.begin(), code.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

bool EmployeeLeaves::touch(WorkMonth month) const {
    return std::any_of(periods.begin(), periods.end(),
                       [month](const LeavePeriod& one) { return one.touches(month); });
}

bool EmployeeLeaves::contain(Date date) const {
    return std::any_of(periods.begin(), periods.end(),
                       [date](const LeavePeriod& one) { return one.contains(date); });
}

EmployeeLeaves RecordedLeaves::leavesOf(const EmployeeKey& key) const {
    EmployeeLeaves leaves;
    const auto bytes = store_.files.read(
        store_.folder.companyFile(key.company, std::string(kLeaveStem) + key.employee.text()));
    for (const std::string& line : splitLines(bytes.value_or(std::string()))) {
        if (!isLeave(line)) continue;
        const auto first = parseDate(fieldOf(line, kFirstDay));
        const auto last = parseDate(fieldOf(line, kLastDay));
        if (first && last && *first <= *last)
            leaves.periods.push_back({*first, *last});
        else
            leaves.unread.push_back(readableText(line));
    }
    return leaves;
}

}  // namespace winvrx
