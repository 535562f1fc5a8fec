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

bool requireContractedEmployee(const Workplace& at, const Employee* employee,
                               const Message& noEmployee, bool evenInactive) {
    const auto refuse = [&](const Message& message) {
        at.person.tell(message);
        return false;
    };
    if (!at.session.company) return refuse(noCompany(at));
    const auto code = employee ? employee->employeeCode() : std::nullopt;
    if (!code) return refuse(noEmployee);
    const EmployeeKey key{*at.session.company, *code};
    const auto since = loadLeaveFile(at.store(), key).inactiveSince;
    if (since && !evenInactive) return refuse(inactive(*employee, *since));
    return hasContract(at.store(), key) || refuse(withoutContract(*employee));
}

Message searchAndSelectEmployee() {
    return refusal(kTitle, "Pesquise e Selecione um Funcionário na Lista! ");
}

Message employeeIsNeeded() {
    return refusal(kTitle, "É necessário Selecioar um Funcionário na Lista!!");
}

}  // namespace winvrx
