#include "foundation/empregados.h"

#include "foundation/company_register.h"
#include "foundation/text.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kNoCompany{"Aviso", "Cadastre Primeiro Uma Empresa!!", Icon::Exclamation};
const Message kIncomplete{"Aviso", "Dados Incompletos!!", Icon::Exclamation};
const Message kNotAccepted{"Aviso", "Dado Incorreto!", Icon::Exclamation};
const Message kWrongAdmission{"Aviso", "Data de Admissão Incorreta!!", Icon::Exclamation};
const Message kConfirmInclude{"INCLUSÃO", "Confirma a Inclusão na LISTA DE FUNCIONARIOS?",
                              Icon::Question, Buttons::YesNo};
const Message kConfirmChange{"ALTERAÇÃO", "Confirma Alteração deste ITEM?", Icon::Question,
                             Buttons::YesNo};
const Message kConfirmDelete{"EXCLUSÃO",
                             "Deseja Excluir o ìtem Selecionado da LISTA DE FUNCIONARIOS?",
                             Icon::Exclamation, Buttons::YesNo};

Message withDetail(Message message, std::string detail) {
    message.detail = std::move(detail);
    return message;
}

/// "Nome, Turno": the captions of required fields that are empty.
std::string missingFields(const Employee& typed) {
    std::string missing;
    for (const EmployeeField& field : kEmployeeFields) {
        if (!isRequired(field.member) || !trimmed(typed.*field.member).empty()) continue;
        missing.append(missing.empty() ? "" : ", ").append(field.caption);
    }
    return missing;
}

/// What is wrong with the texts that have a form of their own; empty when nothing is.
std::string incorrectField(const Employee& typed) {
    if (!typed.employeeCode()) return "O código tem três algarismos.";
    const auto shift = parseShift(typed.shift);
    const auto scale = parseScale(typed.scale);
    if (!shift || !scale) return "Escolha o turno e a escala nas listas.";
    if (!allows(*scale, *shift)) return "A escala 12x36 é permitida somente nos turnos 1 e 3.";
    for (const auto field : {&Employee::birthDate, &Employee::dismissal})
        if (!(typed.*field).empty() && !parseDate(typed.*field))
            return "\"" + typed.*field + "\" não é uma data do calendário.";
    return {};
}

EmployeeLine lineOf(const Employee& employee, std::string existing = {}) {
    std::string bytes = encode(employee, std::move(existing));
    return {bytes, decodeEmployee(bytes)};
}

bool bears(const std::vector<EmployeeLine>& lines, const std::optional<EmployeeCode>& code) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const EmployeeLine& line) { return line.code() == code; });
}

std::string titleOf(const std::vector<CompanyLine>& companies,
                    const std::optional<CompanyCode>& code) {
    for (const CompanyLine& line : companies)
        if (code && line.code() == code) return code->text() + " " + line.company.name;
    return {};
}

}  // namespace

bool isRequired(std::string Employee::*field) {
    return std::find(kRequiredEmployeeFields.begin(), kRequiredEmployeeFields.end(), field) !=
           kRequiredEmployeeFields.end();
}

Empregados::Empregados(const Workplace& at, Browser& browser) : at_(at), browser_(browser) {}

void Empregados::load() {
    (void)attempt(at_, incorrectData(), [this] {
        companyTitle_ = titleOf(loadCompanies(at_.files, at_.session.folder), at_.session.company);
        lines_ = at_.session.company ? employeeRegister().load() : std::vector<EmployeeLine>();
        return true;
    });
}

bool Empregados::include(const Employee& typed) {
    if (!at_.session.company) {
        at_.person.tell(kNoCompany);
        return false;
    }
    if (!accepts(typed)) return false;
    return attempt(at_, incorrectData(), [&] {
        if (refusesTakenCode(typed, employeeRegister().load())) return false;
        if (!at_.person.agrees(kConfirmInclude)) return false;
        const auto hold = holdFolder(at_);
        auto lines = employeeRegister().load();
        if (refusesTakenCode(typed, lines)) return false;
        lines.push_back(lineOf(typed));
        save(std::move(lines));
        return true;
    });
}

bool Empregados::change(std::size_t position, Employee typed) {
    if (!at_.person.agrees(kConfirmChange)) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeLine line = loadUnchanged(position)[position];
        if (!line.code())
            throw Fault("employee line without code: " + line.employee.code,
                        "Esta linha da lista não tem um código válido.");
        typed.code = line.employee.code;
        typed.status = line.employee.status;
        if (!accepts(typed)) return false;
        const auto hold = holdFolder(at_);
        auto lines = loadUnchanged(position);
        lines[position] = lineOf(typed, line.bytes);
        save(std::move(lines));
        return true;
    });
}

bool Empregados::remove(std::size_t position) {
    if (!at_.person.agrees(kConfirmDelete)) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        auto lines = loadUnchanged(position);
        const EmployeeLine chosen = lines[position];
        // A disk that refuses the list must do so before anything is gone. Then the files go
        // first: cut short, the command can be given again.
        save(lines);
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
        removeFilesOf(chosen, lines);
        save(std::move(lines));
        return true;
    });
}

bool Empregados::mayDiscardTyped() {
    return at_.person.agrees(discardTyped());
}

void Empregados::help() {
    openHelp(at_, browser_);
}

EmployeeRegister Empregados::employeeRegister() const {
    return {at_.files, at_.session.folder, at_.session.company.value()};
}

std::vector<EmployeeLine> Empregados::loadUnchanged(std::size_t position) const {
    auto lines = employeeRegister().load();
    if (position >= lines.size() || position >= lines_.size() ||
        lines[position].bytes != lines_[position].bytes)
        throw Fault("employee list changed on disk",
                    "A lista foi alterada por outro computador. Abra a tela novamente.");
    return lines;
}

bool Empregados::accepts(const Employee& typed) const {
    if (const std::string missing = missingFields(typed); !missing.empty()) {
        at_.person.tell(withDetail(kIncomplete, "Falta preencher: " + missing + "."));
        return false;
    }
    if (!typed.admissionDate()) {
        at_.person.tell(withDetail(kWrongAdmission,
                                   "\"" + typed.admission + "\" não é uma data do calendário."));
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
    at_.person.tell(
        withDetail(kNotAccepted, "O código " + typed.code + " já pertence a outro funcionário."));
    return true;
}

void Empregados::removeFilesOf(const EmployeeLine& gone,
                               const std::vector<EmployeeLine>& remaining) const {
    const auto code = gone.code();
    if (code && !bears(remaining, code))
        removeRecordsOfEmployee(at_.files, at_.session.folder, at_.session.company.value(), *code);
}

void Empregados::save(std::vector<EmployeeLine> lines) {
    employeeRegister().save(lines, at_.clock.now());
    lines_ = std::move(lines);
}

}  // namespace winvrx
