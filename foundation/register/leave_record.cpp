#include "foundation/register/leave_record.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr Column kTypeCode{1, 3};
constexpr std::string_view kStatusMark = "****";
constexpr Column kInactiveSince{6, 10};

bool isLeave(std::string_view lineBytes) {
    const std::string code = rawFieldOf(lineBytes, kTypeCode);
    return std::all_of(code.begin(), code.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

std::optional<LeavePeriod> Leave::period() const {
    const auto first = parseDate(firstDay);
    const auto last = parseDate(lastDay);
    if (!first || !last || *last < *first) return std::nullopt;
    return LeavePeriod{*first, *last};
}

std::optional<Leave> decodeLeave(std::string_view lineBytes) {
    if (!isLeave(lineBytes)) return std::nullopt;
    return decode<Leave>(lineBytes);
}

std::string leaveStatusLine(std::optional<Date> inactiveSince) {
    return std::string(kStatusMark) + " " + (inactiveSince ? dateText(*inactiveSince) : "");
}

std::optional<Date> inactiveSince(std::string_view leaveFileBytes) {
    std::optional<Date> since;
    for (const std::string& line : splitLines(leaveFileBytes))
        if (line.starts_with(kStatusMark)) since = parseDate(fieldOf(line, kInactiveSince));
    return since;
}

std::string leaveFileName(const EmployeeCode& employee) {
    return std::string(kLeaveStem) + employee.text();
}

bool EmployeeLeaves::touch(WorkMonth month) const {
    return std::ranges::any_of(periods,
                               [month](const LeavePeriod& one) { return one.touches(month); });
}

bool EmployeeLeaves::contain(Date date) const {
    return std::ranges::any_of(periods,
                               [date](const LeavePeriod& one) { return one.contains(date); });
}

EmployeeLeaves loadLeaves(const Store& store, const EmployeeKey& key) {
    EmployeeLeaves leaves;
    const std::string bytes =
        store.files.read(store.folder.companyFile(key.company, leaveFileName(key.employee)))
            .value_or(std::string());
    leaves.inactiveSince = inactiveSince(bytes);
    for (const std::string& line : splitLines(bytes)) {
        const auto leave = decodeLeave(line);
        if (!leave) continue;
        if (const auto period = leave->period())
            leaves.periods.push_back(*period);
        else
            leaves.unread.push_back(readableText(line));
    }
    return leaves;
}

std::set<EmployeeCode> employeesWithLeaveFile(const CompanyCode& company,
                                              const FolderNames& names) {
    const std::string beginning = company.text() + std::string(kLeaveStem);
    std::set<EmployeeCode> employees;
    for (const std::string& name : beginningWith(names, beginning))
        if (const auto code = EmployeeCode::parse(name.substr(beginning.size())))
            employees.insert(*code);
    return employees;
}

}  // namespace winvrx
