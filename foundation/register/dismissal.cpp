#include "foundation/register/dismissal.h"

#include "foundation/files/file_faults.h"
#include "foundation/register/employee_register.h"
#include "foundation/register/leave_record.h"

#include <algorithm>

namespace winvrx {

namespace {

/// The register with his date of dismissal.
std::vector<EmployeeLine> withDismissal(std::vector<EmployeeLine> lines, const EmployeeKey& key,
                                        std::string date) {
    const auto line = std::ranges::find_if(
        lines, [&](const EmployeeLine& one) { return one.key() == key.employee; });
    if (line == lines.end()) throw employeeChangedElsewhere("register");
    Employee changed = line->record;
    changed.dismissal = std::move(date);
    *line = lineOf(changed, line->bytes);
    return lines;
}

}  // namespace

std::string statusText(std::optional<Date> inactiveSince) {
    return inactiveSince ? "inativo desde " + dateText(*inactiveSince) : "ativo";
}

std::string dismissalContradiction(const Employee& employee, std::optional<Date> inactiveSince) {
    const auto dismissal = parseDate(employee.dismissal);
    if (dismissal == inactiveSince && dismissal.has_value() == !employee.dismissal.empty())
        return {};
    return "Demissão no cadastro: " +
           (employee.dismissal.empty() ? "nenhuma" : employee.dismissal) +
           "; nos afastamentos: " + statusText(inactiveSince) + ".";
}

void saveLeaveFile(const Store& store, const EmployeeKey& key, std::string_view leaveFileBytes,
                   Clock::Moment now) {
    const auto file = store.folder.companyFile(key.company, leaveFileName(key.employee));
    const auto since = inactiveSince(leaveFileBytes);
    if (inactiveSince(store.files.read(file).value_or(std::string())) == since)
        return store.files.replace(file, leaveFileBytes);
    EmployeeRegister list(store, key.company);
    const auto before = list.load();
    const auto after = withDismissal(before, key, since ? dateText(*since) : "");
    if (after != before) list.save(after, now);
    try {
        store.files.replace(file, leaveFileBytes);
    } catch (const FileFault&) {
        try {
            // A write that fails at its last step has put the new bytes there all the same.
            if (after != before && store.files.read(file) != leaveFileBytes)
                store.files.replaceAll({list.contentOf(before)});
        } catch (const FileFault&) {
            // Both screens tell of the contradiction that stays.
        }
        throw;
    }
}

}  // namespace winvrx
