#include "personnel/contract/contracted_employee.h"

#include "foundation/register/company_register.h"
#include "foundation/register/leave_file.h"
#include "personnel/contract/contract_file.h"

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Aviso";

Message inactive(const Employee& employee, Date since) {
    return refusal(kTitle, "Este Funcionário Encontra-se Inativo!!",
                   employee.code + " " + employee.name + ", desde " + dateText(since) + ".");
}

Message withoutContract(const Employee& employee) {
    return refusal(kTitle, "Não Existe Contrato de Trabalho Gerado para este Funcionário!!",
                   "Grave o contrato de " + employee.code + " " + employee.name +
                       " na tela Contrato de Trabalho.");
}

}  // namespace

std::optional<Message> paperRefusal(const Workplace& at, const Employee* employee,
                                    const Message& noEmployee, bool evenInactive) {
    if (!at.session.company) return noCompany(at);
    const auto code = employee ? employee->employeeCode() : std::nullopt;
    if (!code) return noEmployee;
    const EmployeeKey key{*at.session.company, *code};
    const auto since = loadLeaveFile(at.store(), key).inactiveSince;
    if (since && !evenInactive) return inactive(*employee, *since);
    if (!hasContract(at.store(), key)) return withoutContract(*employee);
    return std::nullopt;
}

bool requireContractedEmployee(const Workplace& at, const Employee* employee,
                               const Message& noEmployee, bool evenInactive) {
    const auto refusal = paperRefusal(at, employee, noEmployee, evenInactive);
    return !refusal || at.person.refuse(*refusal);
}

Message searchAndSelectEmployee() {
    return refusal(kTitle, "Pesquise e Selecione um Funcionário na Lista! ");
}

Message employeeIsNeeded() {
    return refusal(kTitle, "É necessário Selecioar um Funcionário na Lista!!");
}

}  // namespace winvrx
