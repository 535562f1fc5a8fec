#include "foundation/register/empregados.h"

#include "foundation/files/record_names.h"
#include "foundation/register/dismissal.h"
#include "foundation/register/employee_checks.h"
#include "foundation/register/employee_transfer.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

const Message kIncomplete = refusal("Aviso", "Dados Incompletos!!");
const Message kNotAccepted = refusal("Aviso", "Dado Incorreto!");
const Message kWrongAdmission = refusal("Aviso", "Data de Admissão Incorreta!!");
const Message kConfirmInclude =
    question("INCLUSÃO", "Confirma a Inclusão na LISTA DE FUNCIONARIOS?");
const Message kConfirmChange = question("ALTERAÇÃO", "Confirma Alteração deste ITEM?");
const Message kConfirmDelete =
    warning("EXCLUSÃO", "Deseja Excluir o ìtem Selecionado da LISTA DE FUNCIONARIOS?");

const Message kRotationMember = refusal(
    "ALTERAÇÃO",
    "Não Permitido Alteração de TURNO ou ESCALA deste Funcionário pois consta na lista de um dos "
    "Grupos de Escala de Revezamento. Para Alterar, Primeiro Remova-o da Lista de Revezamento. ");
const Message kPayrollClosed = refusal(
    "ALTERAÇÃO",
    "ATENÇÃO! Não é Recomendável Alterar o Cadastro de Funcionário! Já Foi Gerada a Folha de "
    "Pagamento para este Funcionário!!");
const Message kConfirmDespitePayroll =
    question("ALTERAÇÃO", "Confirma Gravar Alteração dos Dados do Funcionário Selecionado?");
const Message kNoOtherCompany = refusal("Transferência", "Não há outra empresa cadastrada.");
const Message kRegisteredThere =
    refusal("Transferência", "Este Funcionário Já Está Cadastrado na Outra Empresa!! ");
const Message kHasPunches =
    refusal("Transferência",
            "Este Funcionário Possui Dados de Ponto e não poderá ser Transferido "
            "para Outra Empresa!! ");
const Message kDeletesMember = refusal(
    "EXCLUSÃO",
    "Não Permitido Excluir este Funcionário pois O COLABORADOR Consta na na Lista de um dos Grupos "
    "da Escala de Revezamento. Para Alterar, Primeiro Remova-o da Lista de Revezamento. ");
const Message kDeleteDespiteGroup = warning("EXCLUSÃO", "Deseja Excluir Mesmo Assim?");
const Message kConfirmDeleteAll = warning("EXCLUSÃO", "Deseja Excluir Toda LISTA DE FUNCIONARIOS?");
const Message kCertainDeleteAll =
    warning("EXCLUSÃO", "Tem Certeza de que Deseja Excluir Toda LISTA DE FUNCIONARIOS?");

/// Whether shift or scale would mean something else.
bool changesRotation(const Employee& before, const Employee& after) {
    return before.shiftOr() != after.shiftOr() || before.scaleOr() != after.scaleOr();
}

}  // namespace

bool confirmDespitePayroll(Operator& person, const PayrollLock& payroll, const EmployeeKey& key) {
    if (!payroll.hasClosedMonth(key)) return true;
    person.tell(kPayrollClosed);
    return person.agrees(kConfirmDespitePayroll);
}

Empregados::Empregados(const Workplace& at, const EmpregadosDesk& desk)
    : ListCommands(at, {kConfirmInclude, kConfirmChange, kConfirmDelete}), desk_(desk) {}

void Empregados::reread() {
    auto companies = loadCompanies(at_.store());
    companyTitle_ = titleOf(companies, at_.session.company);
    std::erase_if(companies, [this](const CompanyLine& line) {
        return !line.key() || line.key() == at_.session.company;
    });
    others_ = std::move(companies);
    if (!at_.session.company) return;
    lines_ = read();
    codesOfFiles_ = employeeRegister().codesOfFiles();
    marks_ = readMarks();
}

EmployeeRegister Empregados::employeeRegister() const {
    return {at_.store(), at_.session.company.value()};
}

std::vector<EmployeeLine> Empregados::read() const {
    return employeeRegister().load();
}

void Empregados::write(const Lines& lines) {
    EmployeeRegister list = employeeRegister();
    list.save(lines, at_.clock.now());
    removeEndedMarks(at_.store(), at_.session.company.value(), lines);
    codesOfFiles_ = list.codesOfFiles();
}

EmployeeList::Marks Empregados::readMarks() const {
    return EmployeeList::leaveMarks(at_.store(), at_.session.company.value(), namesIn(at_.store()),
                                    std::nullopt);
}

EmployeeMarks Empregados::marks(const Employee& employee) const {
    const auto code = employee.employeeCode();
    return code ? EmployeeList::marksOf(marks_, *code) : EmployeeMarks();
}

std::string Empregados::contradictionIn(const Employee& employee) const {
    const EmployeeMarks its = marks(employee);
    return its.unreadable ? std::string() : dismissalContradiction(employee, its.inactiveSince);
}

std::optional<EmployeeCode> Empregados::proposedCode() const {
    std::set<EmployeeCode> taken = keysOf(lines_);
    taken.insert(codesOfFiles_.begin(), codesOfFiles_.end());
    return lowestFreeCode(taken);
}

Employee Empregados::freshRecord() const {
    Employee employee;
    if (const auto code = proposedCode()) employee.code = code->text();
    return employee;
}

ListRow Empregados::rowOf(const Employee& employee) const {
    const std::string_view activity = activityOf(employee, marks(employee));
    return {{employee.code, employee.name, employee.function, std::string(activity)},
            searchedText(employee)};
}

std::string Empregados::counts() const {
    if (lines_.empty()) return "nenhum funcionário";
    std::map<std::string_view, std::size_t> shown;
    for (const Line& line : lines_)
        ++shown[line.key() ? activityOf(line.record, marks(line.record)) : ""];
    const std::size_t unreadable = shown["Ilegível"];
    return countOf(shown["Ativo"], "ativo") + ", " + countOf(shown["Inativo"], "inativo") +
           alongWith(shown[kDeletedStatus], "excluído") +
           (unreadable > 0 ? ", " + std::to_string(unreadable) + " com afastamentos ilegíveis"
                           : "") +
           unreadCount(shown[""]);
}

std::string Empregados::newRecordTitle() const {
    return "Novo funcionário · * preenchimento obrigatório";
}

bool Empregados::requireCompany() const {
    return at_.session.company || refuse(noCompany(at_));
}

bool Empregados::requireOtherCompany() {
    return !others_.empty() || refuse(kNoOtherCompany);
}

void Empregados::askForEmployee() {
    at_.person.tell(noEmployeeSelected());
}

Findings<Employee> Empregados::wrongIn(const Employee& typed, const Employee& before) const {
    return winvrx::wrongIn(typed, before, at_.clock.today());
}

Findings<Employee> Empregados::doubtsAbout(const Employee& typed, const Employee& before) const {
    auto doubts = winvrx::doubtsAbout(typed, before, lines_, at_.clock.today());
    if (typed.dismissal != before.dismissal)
        if (!contradictionIn(typed).empty())
            doubts.push_back({&Employee::dismissal,
                              "Nos afastamentos: " + statusText(marks(typed).inactiveSince) + "."});
    return doubts;
}

bool Empregados::requireRight(const Employee& typed, const Employee& before) {
    if (!requireComplete(typed, kIncomplete)) return false;
    if (!typed.admissionDate())
        return refuseFor(noSuchDate(typed, &Employee::admission), kWrongAdmission);
    const auto wrong = wrongIn(typed, before);
    return wrong.empty() || refuseFor(wrong.front(), kNotAccepted);
}

bool Empregados::requireAcceptable(const Employee& typed, const Line*) {
    if (!requireCompany() || !requireRight(typed, {})) return false;
    return !findLine(read(), typed.employeeCode()) || refuseFor(takenCode(typed), kNotAccepted);
}

EmployeeKey Empregados::keyOfLine(const Line& line) const {
    return {at_.session.company.value(), line.key().value()};
}

bool Empregados::isRotationMember(const Line& line) const {
    return line.key() && desk_.rotation.isMember(keyOfLine(line));
}

bool Empregados::change(std::size_t position, const Employee& typed) {
    blamed_ = nullptr;
    if (!at_.person.agrees(questions_.change)) return false;
    return run(incorrectData(), [&] {
        auto lines = read();
        const Line line = knownLineAsShown(lines, lines_, position);
        Employee changed = typed;
        changed.code = line.record.code;
        changed.status = line.record.status;
        if (changesRotation(line.record, changed) && isRotationMember(line)) {
            const bool sameShift = line.record.shiftOr() == changed.shiftOr();
            blamed_ = sameShift ? &Employee::scale : &Employee::shift;
            return refuse(kRotationMember);
        }
        return requireRight(changed, line.record) && requireNoDoubt(changed, line.record) &&
               confirmDespitePayroll(at_.person, desk_.payroll, keyOfLine(line)) &&
               rewrite([&](Lines& now) {
                   lineAsShown(now, lines_, position) = lineOf(changed, line.bytes);
               });
    });
}

const Message* Empregados::transferRefusal(const Line& leaving, const CompanyCode& target) const {
    if (isRotationMember(leaving)) return &kRotationMember;
    const EmployeeTransfer transfer(at_.store(), *at_.session.company, target);
    const auto there = EmployeeRegister(at_.store(), target).load();
    if (!transfer.findArrived(there, leaving) && isRegistered(there, leaving.record))
        return &kRegisteredThere;
    return hasPunchRecords(at_.store(), keyOfLine(leaving)) ? &kHasPunches : nullptr;
}

bool Empregados::transfer(std::size_t position, const CompanyCode& target) {
    if (!at_.person.agrees(questions_.change)) return false;
    return run(incorrectData(), [&] {
        auto lines = read();
        const Line leaving = knownLineAsShown(lines, lines_, position);
        if (const Message* refusal = transferRefusal(leaving, target)) return refuse(*refusal);
        if (!confirmDespitePayroll(at_.person, desk_.payroll, keyOfLine(leaving))) return false;
        return rewrite([&](Lines& now) {
            (void)lineAsShown(now, lines_, position);
            if (!findLine(loadCompanies(at_.store()), target) || transferRefusal(leaving, target))
                throw changedElsewhere("company " + target.text());
            EmployeeTransfer(at_.store(), *at_.session.company, target)
                .move(now, position, at_.clock.now());
            desk_.rotation.removeMember(keyOfLine(leaving));
        });
    });
}

bool Empregados::remove(std::size_t position) {
    return run(incorrectData(), [&] {
        const Message named =
            removalOf(position, alongWith(filesOf(keysOf(Lines{lines_.at(position)})), "arquivo"));
        if (!at_.person.agrees(named)) return false;
        auto lines = read();
        const Line chosen = lineAsShown(lines, lines_, position);
        if (isRotationMember(chosen)) {
            at_.person.tell(kDeletesMember);
            if (!at_.person.agrees(kDeleteDespiteGroup)) return false;
        }
        return erase(position, [&](const Lines& remaining) { removeFilesOf(chosen, remaining); });
    });
}

bool Empregados::removeAll() {
    if (!requireCompany()) return false;
    return run(incorrectData(), [&] {
        for (Message asked : {kConfirmDeleteAll, kCertainDeleteAll}) {
            asked.detail = companyTitle_ + alongWith(lines_.size(), "funcionário") +
                           alongWith(filesOf(keysOf(lines_)), "arquivo");
            if (!at_.person.agrees(asked)) return false;
        }
        return rewrite([&](Lines& lines) {
            at_.keepStateBefore("excluir toda a lista de funcionários da empresa " + companyTitle_);
            write(lines);
            removeRecordsOfList(at_.store(), *at_.session.company, keysOf(lines));
            lines.clear();
        });
    });
}

std::size_t Empregados::filesOf(const std::set<EmployeeCode>& codes) const {
    const FolderNames names = namesIn(at_.store());
    return static_cast<std::size_t>(std::ranges::count_if(names, [&](const std::string& name) {
        const auto code = employeeOfRecord(name, *at_.session.company);
        return code && codes.contains(*code);
    }));
}

void Empregados::removeFilesOf(const Line& gone, const Lines& remaining) const {
    const auto code = gone.key();
    if (!code || findLine(remaining, *code)) return;
    removeRecordsOfEmployee(at_.store(), keyOfLine(gone));
    desk_.rotation.removeMember(keyOfLine(gone));
}

}  // namespace winvrx
