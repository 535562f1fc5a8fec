#include "foundation/register/empregados.h"

#include "foundation/register/employee_checks.h"
#include "foundation/register/employee_transfer.h"
#include "foundation/register/leave_record.h"
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

Message withDetail(Message message, std::string detail) {
    message.detail = std::move(detail);
    return message;
}

Fault noCode(const EmployeeLine& line) {
    return Fault("employee line without code: " + line.employee.code,
                 "Esta linha da lista não tem um código válido.");
}

/// Whether shift or scale would mean something else.
bool changesRotation(const Employee& before, const Employee& after) {
    return before.shiftOr() != after.shiftOr() || before.scaleOr() != after.scaleOr();
}

}  // namespace

Fault changedElsewhere() {
    return {"employee list changed on disk",
            "A lista foi alterada por outro computador. Abra a tela novamente."};
}

Empregados::Empregados(const Workplace& at, const EmployeeSurroundings& around)
    : at_(at), around_(around) {}

void Empregados::load() {
    (void)attempt(at_, incorrectData(), [this] { read(); });
}

void Empregados::read() {
    auto companies = loadCompanies(at_.store());
    companyTitle_ = titleOf(companies, at_.session.company);
    std::erase_if(companies, [this](const CompanyLine& line) {
        return !line.code() || line.code() == at_.session.company;
    });
    others_ = std::move(companies);
    lines_ = at_.session.company ? employeeRegister().load() : std::vector<EmployeeLine>();
    // A leave file that cannot be read is told; the list can be worked with all the same.
    inactive_.clear();
    if (at_.session.company) inactive_ = inactiveEmployees(at_.store(), *at_.session.company);
}

std::optional<Date> Empregados::inactiveSince(const EmployeeLine& line) const {
    const auto code = line.code();
    const auto found = code ? inactive_.find(*code) : inactive_.end();
    return found == inactive_.end() ? std::nullopt : std::optional(found->second);
}

bool Empregados::hasCompany() const {
    if (!at_.session.company) at_.person.tell(noCompany());
    return at_.session.company.has_value();
}

bool Empregados::include(const Employee& typed) {
    if (!hasCompany() || !accepts(typed)) return false;
    return attempt(at_, incorrectData(), [&] {
        if (refusesTakenCode(typed, employeeRegister().load())) return false;
        if (!at_.person.agrees(kConfirmInclude)) return false;
        const auto hold = holdFolder(at_);
        auto lines = employeeRegister().load();
        // A list that is gone: the folder of another drive stands in the place of the one shown.
        if (bears(lines, typed.employeeCode()) || (lines.empty() && !lines_.empty()))
            throw changedElsewhere();
        lines.push_back(lineOf(typed));
        save(std::move(lines));
        return true;
    });
}

bool Empregados::change(std::size_t position, Employee typed) {
    if (!at_.person.agrees(kConfirmChange)) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeLine line = loadUnchanged(position)[position];
        if (!line.code()) throw noCode(line);
        typed.code = line.employee.code;
        typed.status = line.employee.status;
        if (changesRotation(line.employee, typed) && isRotationMember(line)) {
            at_.person.tell(kRotationMember);
            return false;
        }
        if (!accepts(typed) || !agreesDespitePayroll(line)) return false;
        const auto hold = holdFolder(at_);
        auto lines = loadUnchanged(position);
        lines[position] = lineOf(typed, line.bytes);
        save(std::move(lines));
        return true;
    });
}

bool Empregados::isRotationMember(const EmployeeLine& line) const {
    return line.code() && around_.rotation.isMember({at_.session.company.value(), *line.code()});
}

bool Empregados::agreesDespitePayroll(const EmployeeLine& line) const {
    if (!around_.payroll.hasClosedMonth({at_.session.company.value(), line.code().value()}))
        return true;
    at_.person.tell(kPayrollClosed);
    return at_.person.agrees(kConfirmDespitePayroll);
}

bool Empregados::mayTransfer(const EmployeeLine& leaving, const CompanyCode& target) const {
    const CompanyCode company = at_.session.company.value();
    const auto refuses = [this](const Message& message) {
        at_.person.tell(message);
        return false;
    };
    if (isRotationMember(leaving)) return refuses(kRotationMember);
    const auto there = EmployeeRegister(at_.store(), target).load();
    if (!arrivedLine(there, leaving) && isRegistered(there, leaving.employee))
        return refuses(kRegisteredThere);
    if (hasPunchRecords(at_.store(), {company, leaving.code().value()}))
        return refuses(kHasPunches);
    return true;
}

bool Empregados::transfer(std::size_t position, const CompanyCode& target) {
    if (!at_.person.agrees(kConfirmChange)) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeLine leaving = loadUnchanged(position)[position];
        if (!leaving.code()) throw noCode(leaving);
        if (!mayTransfer(leaving, target) || !agreesDespitePayroll(leaving)) return false;
        const auto hold = holdFolder(at_);
        auto lines = loadUnchanged(position);
        EmployeeTransfer(at_.store(), *at_.session.company, target)
            .move(lines, position, at_.clock.now());
        lines_ = std::move(lines);
        return true;
    });
}

bool Empregados::remove(std::size_t position) {
    if (!at_.person.agrees(kConfirmDelete)) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeLine chosen = loadUnchanged(position)[position];
        if (isRotationMember(chosen)) {
            at_.person.tell(kDeletesMember);
            if (!at_.person.agrees(kDeleteDespiteGroup)) return false;
        }
        const auto hold = holdFolder(at_);
        auto lines = loadUnchanged(position);
        // A disk that refuses the list must do so before anything is gone. Then the files go
        // first: cut short, the command can be given again.
        save(lines);
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
        removeFilesOf(chosen, lines);
        save(std::move(lines));
        return true;
    });
}

bool Empregados::removeAll() {
    if (!hasCompany() || !at_.person.agrees(kConfirmDeleteAll) ||
        !at_.person.agrees(kCertainDeleteAll))
        return false;
    return attemptWriting(at_, incorrectData(), [&] {
        auto lines = employeeRegister().load();
        save(lines);
        for (const EmployeeLine& line : lines)
            removeFilesOf(line, {});
        save({});
    });
}

bool Empregados::offersTransfer() {
    if (others_.empty()) at_.person.tell(kNoOtherCompany);
    return !others_.empty();
}

void Empregados::askForEmployee() {
    at_.person.tell(noEmployeeSelected());
}

bool Empregados::mayDiscardTyped() {
    return at_.person.agrees(discardTyped());
}

void Empregados::help() {
    openHelp(at_, around_.browser);
}

EmployeeRegister Empregados::employeeRegister() const {
    return {at_.store(), at_.session.company.value()};
}

std::vector<EmployeeLine> Empregados::loadUnchanged(std::size_t position) const {
    auto lines = employeeRegister().load();
    if (position >= lines.size() || position >= lines_.size() ||
        lines[position].bytes != lines_[position].bytes)
        throw changedElsewhere();
    return lines;
}

bool Empregados::accepts(const Employee& typed) const {
    if (const std::string missing = missingFields(typed); !missing.empty()) {
        at_.person.tell(withDetail(kIncomplete, "Falta preencher: " + missing + "."));
        return false;
    }
    if (!typed.admissionDate()) {
        at_.person.tell(withDetail(kWrongAdmission, noSuchDate(typed.admission)));
        return false;
    }
    if (std::string wrong = incorrectField(typed); !wrong.empty()) {
        at_.person.tell(withDetail(kNotAccepted, std::move(wrong)));
        return false;
    }
    return true;
}

bool Empregados::refusesTakenCode(const Employee& typed,
                                  const std::vector<EmployeeLine>& lines) const {
    if (!bears(lines, typed.employeeCode())) return false;
    at_.person.tell(withDetail(kNotAccepted, takenCode(typed)));
    return true;
}

void Empregados::removeFilesOf(const EmployeeLine& gone,
                               const std::vector<EmployeeLine>& remaining) const {
    const auto code = gone.code();
    if (code && !bears(remaining, code))
        removeRecordsOfEmployee(at_.store(), {at_.session.company.value(), *code});
}

void Empregados::save(std::vector<EmployeeLine> lines) {
    employeeRegister().save(lines, at_.clock.now());
    lines_ = std::move(lines);
}

}  // namespace winvrx
