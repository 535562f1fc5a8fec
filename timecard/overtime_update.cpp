#include "timecard/overtime_update.h"

#include "foundation/company_register.h"
#include "foundation/employee_register.h"
#include "foundation/text.h"
#include "timecard/overtime_record.h"

#include <set>

namespace winvrx {

namespace {

const Message kNobodyListed{"Aviso",
                            "Não há Dados de Funcionários! Cadastre pelo menos um Funcionário.",
                            Icon::Exclamation};

Message confirmation(const Workplace& at, WorkMonth month, std::size_t employees) {
    const std::string company =
        titleOf(loadCompanies(at.files, at.session.folder), at.session.company);
    const std::string count = employees == 1 ? "1 funcionário recebe"
                                             : std::to_string(employees) + " funcionários recebem";
    return {"ALTERAÇÃO",
            "Confirma Atualizar as Horas Extras de " + upperCase(monthTitle(month)) +
                " p/Todos os Funcionários da Lista?",
            Icon::Question, Buttons::YesNo,
            company + ", turno " + std::string(codeOf(at.session.shiftFilter)) + ": " + count +
                " as configurações de horas extras desta tela no lugar das que tinham no mês."};
}

/// Each listed employee's file with the line in it; empty when the operator cancels.
std::vector<FileSystem::NewContent> batchFor(const Workplace& at, const OvertimeLine& line,
                                             const OvertimeProgress& progress) {
    std::set<EmployeeCode> codes;
    for (const Employee& one : listedEmployees(at))
        codes.insert(one.employeeCode().value());
    std::vector<FileSystem::NewContent> batch;
    for (const EmployeeCode& code : codes) {
        if (!progress(batch.size(), codes.size())) return {};
        batch.push_back(
            withOvertime(at.files, at.session.folder, at.session.company.value(), code, line));
    }
    if (!progress(batch.size(), codes.size())) return {};
    return batch;
}

}  // namespace

std::vector<Employee> listedEmployees(const Workplace& at) {
    if (!at.session.company) return {};
    return employeesOf(EmployeeRegister(at.files, at.session.folder, *at.session.company).load(),
                       at.session.shiftFilter);
}

std::vector<OvertimeRules> ownRulesOfList(const Workplace& at, WorkMonth month) {
    std::vector<OvertimeRules> own;
    if (!at.session.company) return own;
    const auto listed = at.files.names(at.session.folder.path());
    const std::set<std::string> names(listed.begin(), listed.end());
    for (const Employee& one : listedEmployees(at)) {
        const EmployeeCode code = one.employeeCode().value();
        if (!names.contains(at.session.company->text() + overtimeFileName(code))) continue;
        if (const auto rules =
                loadOvertime(at.files, at.session.folder, *at.session.company, code, month))
            own.push_back(*rules);
    }
    return own;
}

std::optional<std::size_t> updateOvertimeOfList(const Workplace& at, WorkMonth month,
                                                const OvertimeRules& rules,
                                                const OvertimeProgress& progress) {
    std::size_t updated = 0;
    const bool done = attempt(at, incorrectData(), [&] {
        const std::size_t listed = listedEmployees(at).size();
        if (listed == 0) {
            at.person.tell(at.session.company ? kNobodyListed : noCompany());
            return false;
        }
        if (!at.person.agrees(confirmation(at, month, listed))) return false;
        const FolderLock::Hold hold = holdFolder(at);
        const auto batch = batchFor(at, {month, rules}, progress);
        if (batch.empty()) return false;
        at.files.replaceAll(batch);
        updated = batch.size();
        return true;
    });
    return done ? std::optional(updated) : std::nullopt;
}

}  // namespace winvrx
