#include "timecard/month/overtime_update.h"

#include "foundation/files/folder_names.h"
#include "foundation/files/payroll_file.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"
#include "timecard/month/overtime_record.h"

#include <algorithm>
#include <map>
#include <string>

namespace winvrx {

namespace {

const Message kNobodyListed =
    refusal("Aviso", "Não há Dados de Funcionários! Cadastre pelo menos um Funcionário.");
const Message kAllClosed =
    refusal("ALTERAÇÃO",
            "A folha de pagamento deste mês já foi gerada para todos os funcionários da lista: não "
            "há o que atualizar.");

/// So many that a batch's flush is shared, so few that the operator sees it move on.
constexpr std::ptrdiff_t kWrittenTogether = 64;

/// The listed employees, told apart by whether the payroll of the month is generated for them.
struct Listed {
    std::map<EmployeeCode, std::string> open;  ///< names by code
    std::map<EmployeeCode, std::string> closed;
};

/// Those with a code whose shift passes the session's filter; none without a company.
Listed listedIn(const Workplace& at, WorkMonth month, const FolderNames& names) {
    Listed listed;
    if (!at.session.company) return listed;
    const CompanyCode& company = *at.session.company;
    const auto lines = EmployeeRegister(at.store(), company).load();
    for (const Employee& one : employeesOf(lines, at.session.shiftFilter)) {
        const EmployeeCode code = one.employeeCode().value();
        const bool closed = names.contains(payrollFileName({company, code}, month));
        (closed ? listed.closed : listed.open).emplace(code, one.name);
    }
    return listed;
}

std::string detailOf(const Workplace& at, const Listed& listed) {
    const std::string company = titleOf(loadCompanies(at.store()), at.session.company);
    const std::string count =
        countOf(listed.open.size(), "funcionário recebe", "funcionários recebem");
    std::string detail =
        company + ", turno " + std::string(codeOf(at.session.shiftFilter)) + ": " + count +
        " os percentuais desta tela no lugar dos que tinham no mês. As outras configurações valem "
        "para todos assim que o mês é gravado.";
    if (listed.closed.empty()) return detail;
    return detail +
           "\nFicam como estão, folha fechada: " + joined(listed.closed, ", ", [](const auto& one) {
               return one.first.text() + " " + one.second;
           });
}

Message confirmation(const Workplace& at, WorkMonth month, const Listed& listed) {
    return riskyQuestion("ALTERAÇÃO",
                         "Confirma Atualizar as Horas Extras de " + upperCase(monthTitle(month)) +
                             " p/Todos os Funcionários da Lista?",
                         detailOf(at, listed));
}

/// The files of those who have not the line's percentages yet, with the line in them.
std::vector<FileSystem::NewContent> filesToWrite(const Workplace& at, const Listed& listed,
                                                 const OvertimeLine& line) {
    const CompanyCode& company = at.session.company.value();
    std::vector<FileSystem::NewContent> batch;
    for (const auto& [code, name] : listed.open)
        if (auto content = withOvertime(at.store(), {company, code}, line))
            batch.push_back(*std::move(content));
    return batch;
}

OvertimeUpdate writeFor(const Workplace& at, const OvertimeLine& line,
                        const OvertimeProgress& progress) {
    const Listed listed = listedIn(at, line.month, namesIn(at.store()));
    const auto batch = filesToWrite(at, listed, line);
    OvertimeUpdate update{listed.open.size() - batch.size(), listed.open.size(),
                          listed.closed.size()};
    for (auto first = batch.begin(); first != batch.end() && progress(update.done, update.total);) {
        const auto last = first + std::min(kWrittenTogether, batch.end() - first);
        at.files.replaceAll({first, last});
        update.done += static_cast<std::size_t>(last - first);
        first = last;
    }
    return update;
}

bool confirmUpdate(const Workplace& at, WorkMonth month) {
    const Listed listed = listedIn(at, month, namesIn(at.store()));
    if (!listed.open.empty()) return at.person.agrees(confirmation(at, month, listed));
    if (!at.session.company) return at.person.refuse(noCompany(at));
    return at.person.refuse(listed.closed.empty() ? kNobodyListed : kAllClosed);
}

}  // namespace

std::vector<OvertimePercents> ownPercentsOfList(const Workplace& at, WorkMonth month) {
    std::vector<OvertimePercents> own;
    if (!at.session.company) return own;
    const auto names = namesIn(at.store());
    for (const auto& [code, name] : listedIn(at, month, names).open) {
        if (!names.contains(at.session.company->text() + overtimeFileName(code))) continue;
        if (const auto percents = loadOvertime(at.store(), {*at.session.company, code}, month))
            own.push_back(*percents);
    }
    return own;
}

std::optional<OvertimeUpdate> updateOvertimeOfList(const Workplace& at, WorkMonth month,
                                                   const OvertimePercents& percents,
                                                   const OvertimeProgress& progress) {
    std::optional<OvertimeUpdate> update;
    (void)attempt(at, incorrectData(), [&] {
        if (!confirmUpdate(at, month)) return false;
        const FolderLock::Hold hold = holdFolder(at);
        update = writeFor(at, {month, percents}, progress);
        return true;
    });
    return update;
}

}  // namespace winvrx
