#include "foundation/register/employee_transfer.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

std::string digitsOf(std::string_view text) {
    std::string digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

bool isSamePerson(const Employee& one, const Employee& other) {
    const std::string taxId = digitsOf(one.taxId);
    const std::string otherTaxId = digitsOf(other.taxId);
    if (!taxId.empty() && !otherTaxId.empty()) return taxId == otherTaxId;
    return foldedForSearch(one.name) == foldedForSearch(other.name);
}

}  // namespace

bool isRegistered(const std::vector<EmployeeLine>& lines, const Employee& person) {
    return std::any_of(lines.begin(), lines.end(), [&](const EmployeeLine& line) {
        return isSamePerson(line.employee, person);
    });
}

const EmployeeLine* arrivedLine(const std::vector<EmployeeLine>& there,
                                const EmployeeLine& leaving) {
    const auto found = std::find_if(there.begin(), there.end(), [&](const EmployeeLine& line) {
        return line.code() && leaving.code() &&
               std::string_view(line.bytes).substr(EmployeeCode::kDigits) ==
                   std::string_view(leaving.bytes).substr(EmployeeCode::kDigits);
    });
    return found == there.end() ? nullptr : &*found;
}

bool hasPunchRecords(const Store& store, const EmployeeKey& key) {
    const auto names = store.files.names(store.folder.path());
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return isPunchRecordOfEmployee(name, key); });
}

bool EmployeeTransfer::isFreeThere(const EmployeeCode& code, const EmployeeCode& oldCode,
                                   const std::vector<EmployeeLine>& there) const {
    if (bears(there, code)) return false;
    const auto brought = filesThere(oldCode, code, false);
    const auto names = store_.files.names(store_.folder.path());
    return std::none_of(names.begin(), names.end(), [&](const std::string& name) {
        if (!isRecordOfEmployee(name, {to_, code})) return false;
        const auto same = std::find_if(brought.begin(), brought.end(), [&](const auto& content) {
            return content.file == store_.folder.file(name) &&
                   content.bytes == store_.files.read(content.file);
        });
        return same == brought.end();
    });
}

EmployeeLine EmployeeTransfer::lineThere(const EmployeeLine& leaving,
                                         const std::vector<EmployeeLine>& there) const {
    const EmployeeCode oldCode = leaving.code().value();
    auto code = std::optional(oldCode);
    for (int number = 1; code && !isFreeThere(*code, oldCode, there); ++number)
        code = EmployeeCode::fromNumber(number);
    if (!code)
        throw Fault("no free employee code in company " + to_.text(),
                    "Na outra empresa todos os códigos de 001 a 999 já estão em uso.");
    Employee employee = leaving.employee;
    employee.code = code->text();
    return lineOf(employee, leaving.bytes);
}

std::vector<FileSystem::NewContent> EmployeeTransfer::filesThere(const EmployeeCode& oldCode,
                                                                 const EmployeeCode& newCode,
                                                                 bool resumed) const {
    std::vector<FileSystem::NewContent> content;
    for (const std::string& name : store_.files.names(store_.folder.path())) {
        if (!isRecordOfEmployee(name, {from_, oldCode})) continue;
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
    const EmployeeLine* arrived = arrivedLine(there, leaving);
    const EmployeeLine line = arrived ? *arrived : lineThere(leaving, there);

    const EmployeeCode oldCode = leaving.code().value();
    auto written = filesThere(oldCode, line.code().value(), arrived != nullptr);
    // The list here is written too: a disk that refuses it must do so before anything is gone.
    listHere.keepCopy(now);
    written.push_back(listHere.contentOf(lines));
    if (!arrived) {
        there.push_back(line);
        listThere.keepCopy(now);
        written.push_back(listThere.contentOf(there));
    }
    store_.files.replaceAll(written);
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
    if (!bears(lines, oldCode)) removeRecordsOfEmployee(store_, {from_, oldCode});
    listHere.save(lines, now);
}

}  // namespace winvrx
