#include "timecard/month/overtime_update.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"
#include "timecard/month/overtime_record.h"

#include <algorithm>
#include <set>

namespace winvrx {

namespace {

const Message kNobodyListed =
    refusal("Aviso", "Não há Dados de Funcionários! Cadastre pelo menos um Funcionário.");

/// So many that a batch's flush is shared, so few that the operator sees it move on.
constexpr std::ptrdiff_t kWrittenTogether = 64;

Message confirmation(const Workplace& at, WorkMonth month, std::size_t employees) {
    const std::string company = titleOf(loadCompanies(at.store()), at.session.company);
    const std::string count = employees == 1 ? "1 funcionário recebe"
                                             : std::to_string(employees) + " funcionários recebem";
    return riskyQuestion(
        "ALTERAÇÃO",
        "Confirma Atualizar as Horas Extras de " + upperCase(monthTitle(month)) +
            " p/Todos os Funcionários da Lista?",
        company + ", turno " + std::string(codeOf(at.session.shiftFilter)) + ": " + count +
            " as configurações de horas extras desta tela no lugar das que tinham no mês.");
}

std::set<EmployeeCode> listedCodes(const Workplace& at) {
    std::set<EmployeeCode> codes;
    for (const Employee& one : listedEmployees(at))
        codes.insert(one.employeeCode().value());
    return codes;
}

/// The files of those who have not the line's rules yet, with the line in them.
std::vector<FileSystem::NewContent> filesToWrite(const Workplace& at,
                                                 const std::set<EmployeeCode>& codes,
                                                 const OvertimeLine& line) {
    const CompanyCode& company = at.session.company.value();
    std::vector<FileSystem::NewContent> batch;
    for (const EmployeeCode& code : codes)
        if (loadOvertime(at.store(), {company, code}, line.month) != line.rules)
            batch.push_back(withOvertime(at.store(), {company, code}, line));
    return batch;
}

OvertimeUpdate writeFor(const Workplace& at, const OvertimeLine& line,
                        const OvertimeProgress& progress) {
    const auto codes = listedCodes(at);
    const auto batch = filesToWrite(at, codes, line);
    OvertimeUpdate update{codes.size() - batch.size(), codes.size()};
    for (auto first = batch.begin(); first != batch.end() && progress(update.done, update.total);) {
        const auto last = first + std::min(kWrittenTogether, batch.end() - first);
        at.files.replaceAll({first, last});
        update.done += static_cast<std::size_t>(last - first);
        first = last;
    }
    return update;
}

}  // namespace

std::vector<Employee> listedEmployees(const Workplace& at) {
    if (!at.session.company) return {};
    return employeesOf(EmployeeRegister(at.store(), *at.session.company).load(),
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
        if (const auto rules = loadOvertime(at.store(), {*at.session.company, code}, month))
            own.push_back(*rules);
    }
    return own;
}

std::optional<OvertimeUpdate> updateOvertimeOfList(const Workplace& at, WorkMonth month,
                                                   const OvertimeRules& rules,
                                                   const OvertimeProgress& progress) {
    std::optional<OvertimeUpdate> update;
    (void)attempt(at, incorrectData(), [&] {
        const std::size_t listed = listedCodes(at).size();
        if (listed == 0) {
            at.person.tell(at.session.company ? kNobodyListed : noCompany());
            return false;
        }
        if (!at.person.agrees(confirmation(at, month, listed))) return false;
        const FolderLock::Hold hold = holdFolder(at);
        update = writeFor(at, {month, rules}, progress);
        return true;
    });
    return update;
}

}  // namespace winvrx
