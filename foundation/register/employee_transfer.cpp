#include "foundation/register/employee_transfer.h"

#include "foundation/files/record_names.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

/// "01Transf001".
bool isMark(std::string_view name) {
    return name.substr(std::min(name.size(), CompanyCode::kDigits)).starts_with(kTransferStem);
}

bool isSamePerson(const Employee& one, const Employee& other) {
    const std::string taxId = digitsIn(one.taxId);
    const std::string otherTaxId = digitsIn(other.taxId);
    if (!taxId.empty() && !otherTaxId.empty()) return taxId == otherTaxId;
    return foldedForSearch(one.name) == foldedForSearch(other.name);
}

}  // namespace

bool isRegistered(const std::vector<EmployeeLine>& lines, const Employee& person) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const EmployeeLine& line) { return isSamePerson(line.record, person); });
}

bool hasPunchRecords(const Store& store, const EmployeeKey& key) {
    const auto names = store.files.names(store.folder.path());
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return isPunchRecordOfEmployee(name, key); });
}

RecordFile EmployeeTransfer::markOf(const EmployeeCode& code) const {
    return {store_, from_, std::string(kTransferStem) + code.text()};
}

std::optional<EmployeeKey> EmployeeTransfer::markedKey(const EmployeeCode& code) const {
    const auto values = markOf(code).values();
    if (values.size() != 2) return std::nullopt;
    const auto company = CompanyCode::parse(values[0]);
    const auto employee = EmployeeCode::parse(values[1]);
    if (!company || !employee) return std::nullopt;
    return EmployeeKey{*company, *employee};
}

const EmployeeLine* EmployeeTransfer::findArrived(const std::vector<EmployeeLine>& there,
                                                  const EmployeeLine& leaving) const {
    const auto marked = leaving.key() ? markedKey(*leaving.key()) : std::nullopt;
    if (!marked || marked->company != to_) return nullptr;
    const EmployeeLine* line = findLine(there, marked->employee);
    const auto withoutCode = [](const EmployeeLine& one) {
        return std::string_view(one.bytes).substr(EmployeeCode::kDigits);
    };
    return line && withoutCode(*line) == withoutCode(leaving) ? line : nullptr;
}

void EmployeeTransfer::requireNoOtherTarget(const EmployeeLine& leaving) const {
    const auto marked = markedKey(leaving.key().value());
    if (!marked || marked->company == to_) return;
    const auto there = EmployeeRegister(store_, marked->company).load();
    if (EmployeeTransfer(store_, from_, marked->company).findArrived(there, leaving))
        throw Fault("unfinished transfer to company " + marked->company.text(),
                    "A transferência deste funcionário para a empresa " + marked->company.text() +
                        " foi interrompida. Transfira-o primeiro para ela.");
}

EmployeeCode EmployeeTransfer::codeThere(const EmployeeCode& oldCode,
                                         const std::vector<EmployeeLine>& there) const {
    std::set<EmployeeCode> taken = keysOf(there);
    const auto marked = markedKey(oldCode);
    // Only the move that was cut short has brought files under the code that it marked.
    if (marked && marked->company == to_ && !taken.contains(marked->employee))
        return marked->employee;
    taken.merge(EmployeeRegister(store_, to_).codesOfFiles());
    if (!taken.contains(oldCode)) return oldCode;
    const auto code = lowestFreeCode(taken);
    if (!code)
        throw Fault("no free employee code in company " + to_.text(),
                    "Na outra empresa todos os códigos de 001 a 999 já estão em uso.");
    return *code;
}

std::vector<FileSystem::NewContent> EmployeeTransfer::filesThere(const EmployeeCode& oldCode,
                                                                 const EmployeeCode& newCode,
                                                                 bool resumed) const {
    std::vector<FileSystem::NewContent> content;
    for (const std::string& name : store_.files.names(store_.folder.path())) {
        if (!isRecordOfEmployee(name, {from_, oldCode}) || isMark(name)) continue;
        auto bytes = store_.files.read(store_.folder.file(name));
        if (!bytes) continue;
        const auto file = store_.folder.file(renamedForEmployee(name, {to_, newCode}));
        if (resumed && store_.files.read(file).value_or(*bytes) != *bytes)
            throw Fault("transfer would overwrite " + file.string(),
                        "Na outra empresa este funcionário já tem outros dados gravados.");
        content.push_back({file, std::move(*bytes)});
    }
    return content;
}

void EmployeeTransfer::move(std::vector<EmployeeLine>& lines, std::size_t position,
                            Clock::Moment now) {
    EmployeeRegister listHere(store_, from_);
    EmployeeRegister listThere(store_, to_);
    auto there = listThere.load();
    const EmployeeLine leaving = lines.at(position);
    requireNoOtherTarget(leaving);
    const EmployeeLine* arrived = findArrived(there, leaving);

    const EmployeeCode oldCode = leaving.key().value();
    const EmployeeCode newCode = arrived ? arrived->key().value() : codeThere(oldCode, there);
    auto written = filesThere(oldCode, newCode, arrived != nullptr);
    // The list here is written too: a disk that refuses it must do so before anything is gone.
    listHere.keepCopy(now);
    written.push_back(listHere.contentOf(lines));
    if (!arrived) {
        Employee employee = leaving.record;
        employee.code = newCode.text();
        there.push_back(lineOf(employee, leaving.bytes));
        listThere.keepCopy(now);
        written.push_back(listThere.contentOf(there));
    }
    RecordFile mark = markOf(oldCode);
    mark.rewriteValues({to_.text(), newCode.text()});
    try {
        store_.files.replaceAll(written);
    } catch (...) {
        // What has arrived is finished under the mark; where nothing has, nothing was begun.
        const bool begun =
            findArrived(listThere.load(), leaving) || listThere.codesOfFiles().contains(newCode);
        if (!begun) mark.remove();
        throw;
    }
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
    if (!findLine(lines, oldCode))
        for (const std::string& name : store_.files.names(store_.folder.path()))
            if (isRecordOfEmployee(name, {from_, oldCode}) && !isMark(name))
                store_.files.remove(store_.folder.file(name));
}

void removeEndedMarks(const Store& store, const CompanyCode& company,
                      const std::vector<EmployeeLine>& lines) {
    for (const std::string& name : store.files.names(store.folder.path()))
        if (const auto code = employeeOfRecord(name, company);
            code && isMark(name) && !findLine(lines, *code))
            store.files.remove(store.folder.file(name));
}

}  // namespace winvrx
