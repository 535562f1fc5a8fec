#include "foundation/register/leave_record.h"

#include "foundation/files/record_names.h"
#include "foundation/values/digits.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr Column kTypeCode{1, 3};
constexpr std::string_view kTerminationWords = "RESCISÃO_CONTRATO_TRABALHO";
constexpr std::string_view kStatusMark = "****";
constexpr Column kInactiveSince{6, 10};

bool isLeave(std::string_view lineBytes) {
    const std::string code = rawFieldOf(lineBytes, kTypeCode);
    return std::ranges::all_of(code, isDigit);
}

}  // namespace

std::optional<LeavePeriod> Leave::period() const {
    const auto first = parseDate(firstDay);
    const auto last = parseDate(lastDay);
    if (!first || !last || *last < *first) return std::nullopt;
    return LeavePeriod{*first, *last};
}

bool Leave::isTermination() const {
    static const std::string words = foldedForSearch(kTerminationWords);
    return foldedForSearch(type).find(words) != std::string::npos;
}

bool Leave::isOfHours() const {
    const std::string_view text = duration;
    const std::size_t days = text.find_first_not_of("0123456789");
    if (days == 0 || days == std::string_view::npos) return false;
    return text.find_first_not_of('0') == days &&
           text.find_first_of("123456789", days) != std::string_view::npos;
}

std::optional<Date> Leave::lastDayWorked() const {
    return isTermination() ? parseDate(lastWorked) : std::nullopt;
}

std::string wordOf(const Leave& leave) {
    std::string word = leave.type.substr(std::min(leave.type.size(), kTypeCode.width));
    std::ranges::replace(word, '_', ' ');
    return std::string(trimmed(word));
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
