#include "foundation/register/turnos.h"

#include "foundation/register/company_register.h"
#include "foundation/register/empregados.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kConfirmChange = question("ALTERAÇÃO", "Confirma Alteração deste ITEM?");
const Message kRotationMember = refusal(
    "ALTERAÇÃO",
    "Não Permitido Alteração de Turno deste Funcionário pois consta na lista de um dos Grupos da "
    "Escala de Revezamento. Para Alterar, Primeiro Remova-o da Lista de Revezamento. ");
const Message kBarredByScale =
    refusal("Aviso", "Dado Incorreto!",
            "A escala 12x36 é permitida somente nos turnos 1 e 3. Altere primeiro a escala.");

Message noShiftChosen(const Employee& employee) {
    return refusal("Aviso", "Dado Incorreto!",
                   "O turno \"" + employee.shift + "\" de " + employee.code + " " + employee.name +
                       " não é conhecido. Escolha o novo turno na lista.");
}

}  // namespace

void Turnos::load() {
    (void)attempt(at_, incorrectData(), [this] {
        companyTitle_ = titleOf(loadCompanies(at_.store()), at_.session.company);
        if (at_.session.company) list_.load(at_.store(), *at_.session.company);
    });
}

bool Turnos::change(const Employee& employee, std::optional<Shift> shift) {
    if (!shift) return at_.person.refuse(noShiftChosen(employee));
    if (!at_.person.agrees(kConfirmChange)) return false;
    return attempt(at_, incorrectData(), [&] {
        const CompanyCode company = at_.session.company.value();
        EmployeeRegister stored(at_.store(), company);
        auto lines = stored.load();
        (void)lineOfEmployee(lines, employee);
        const EmployeeKey key{company, employee.employeeCode().value()};
        if (rotation_.isMember(key)) return at_.person.refuse(kRotationMember);
        if (!allows(employee.scaleOr(), *shift)) return at_.person.refuse(kBarredByScale);
        if (!confirmDespitePayroll(at_.person, payroll_, key)) return false;
        const auto hold = holdFolder(at_);
        lines = stored.load();
        EmployeeLine& line = lineOfEmployee(lines, employee);
        Employee changed = employee;
        changed.shift = codeOf(*shift);
        line = lineOf(changed, line.bytes);
        stored.save(lines, at_.clock.now());
        list_.load(at_.store(), company);
        return true;
    });
}

EmployeeLine& Turnos::lineOfEmployee(std::vector<EmployeeLine>& lines, const Employee& employee) {
    const auto line = std::ranges::find(lines, employee, &EmployeeLine::record);
    if (line == lines.end()) throw changedElsewhere("employee list");
    return *line;
}

void Turnos::askForEmployee() {
    at_.person.tell(noEmployeeSelected());
}

}  // namespace winvrx
