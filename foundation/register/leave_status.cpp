#include "foundation/register/leave_status.h"

#include "foundation/files/record_file.h"

namespace winvrx {

namespace {

constexpr std::string_view kStatusMark = "****";
constexpr Column kInactiveSince{6, 10};

}  // namespace

std::optional<Date> inactiveSince(std::string_view leaveFileBytes) {
    std::optional<Date> since;
    for (const std::string& line : splitLines(leaveFileBytes))
        if (line.starts_with(kStatusMark)) since = parseDate(fieldOf(line, kInactiveSince));
    return since;
}

std::map<EmployeeCode, Date> inactiveEmployees(const Store& store, const CompanyCode& company) {
    const std::string beginning = company.text() + std::string(kLeaveStem);
    std::map<EmployeeCode, Date> inactive;
    for (const std::string& name : store.files.names(store.folder.path())) {
        if (!name.starts_with(beginning)) continue;
        const auto code = EmployeeCode::parse(std::string_view(name).substr(beginning.size()));
        if (!code) continue;
        const auto since =
            inactiveSince(store.files.read(store.folder.file(name)).value_or(std::string()));
        if (since) inactive.emplace(*code, *since);
    }
    return inactive;
}

}  // namespace winvrx
