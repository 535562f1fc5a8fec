#include "personnel/contract/contract_file.h"

#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"
#include "foundation/register/employee_register.h"

#include <algorithm>

namespace winvrx {

namespace {

RecordFile fileOf(const Store& store, const EmployeeKey& key) {
    return {store, contractFileName(key)};
}

/// The end that comes next: of the trial as first agreed while that lies ahead, then of the
/// extension.
std::optional<EndingTrial> nextEnd(const Employee& employee, const Contract& contract, Date today) {
    const auto first = contract.trialEnd();
    const auto extended = contract.extendedEnd();
    if (first && *first >= today) return EndingTrial{employee, *first};
    if (extended && *extended >= today) return EndingTrial{employee, *extended};
    return std::nullopt;
}

}  // namespace

std::string contractFileName(const EmployeeKey& key) {
    return key.company.text() + std::string(kContractStem) + key.employee.text();
}

bool hasContract(const Store& store, const EmployeeKey& key) {
    return store.files.exists(store.folder.file(contractFileName(key)));
}

std::optional<StoredLine<Contract>> loadContract(const Store& store, const EmployeeKey& key) {
    const auto lines = fileOf(store, key).linesIfAny();
    if (!lines) return std::nullopt;
    return lineFrom<Contract>(lines->empty() ? std::string() : lines->front());
}

void saveContract(const Store& store, const EmployeeKey& key, const Contract& contract,
                  const std::string& existing) {
    fileOf(store, key).rewrite({encode(contract, existing)});
}

std::vector<EndingTrial> endingTrials(const Store& store, const CompanyCode& company, Date today) {
    std::vector<EndingTrial> ending;
    for (const EmployeeLine& line : EmployeeRegister(store, company).load()) {
        const Employee& employee = line.record;
        const auto admission = employee.admissionDate();
        if (!line.key() || !admission || !employee.dismissal.empty() ||
            employee.status == kDeletedStatus || *admission < plusDays(today, -kLongestTrial))
            continue;
        const auto contract = loadContract(store, {company, *line.key()});
        const auto next = contract ? nextEnd(employee, contract->record, today) : std::nullopt;
        if (next && next->lastDay <= plusDays(today, kTrialNotice)) ending.push_back(*next);
    }
    std::ranges::stable_sort(ending, {}, &EndingTrial::lastDay);
    return ending;
}

}  // namespace winvrx
