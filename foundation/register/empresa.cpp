#include "foundation/register/empresa.h"

#include "foundation/files/folder_names.h"
#include "foundation/files/record_names.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

const Message kFirstCompany = failure(
    "Excluindo Empresa",
    "ATENCAO!!! Não é Possível Excluir a Primeira Empresa. Você Pode Alterar os Dados Cadastrados "
    "nesta Empresa! ");
const Message kHasEmployees = warning(
    "CUIDADO!!! - Excluindo Empresa",
    "ATENCAO!!! Não é Possível Excluir agora. Existem Funcioários Cadastrados nesta Empresa! "
    "Deseja Excluir toda lista de Funcionário Incluindo desta Empresa Selecionada?");
const Message kDeletesEmployees = warning(
    "EXCLUIR", "Este Comando irá Exluir a Empresa e a Lista de Funcionarios. Deseja Continuar?");
const Message kCertain = warning("EXCLUIR", "Tem Certeza que Deseja Excluir o Item Selecionado?");

constexpr std::array kNumbers = {CheckedNumber<Company>{&Company::taxId, checkCnpjOrCpf},
                                 CheckedNumber<Company>{&Company::ownerTaxId, checkCpf},
                                 CheckedNumber<Company>{&Company::unionTaxId, checkCnpj}};

bool isFirst(const std::vector<CompanyLine>& lines, std::size_t position) {
    return firstCompany(lines) == lines.data() + position;
}

}  // namespace

Company Empresa::freshRecord() const {
    Company company;
    if (const auto code = proposedCode()) company.code = code->text();
    return company;
}

ListRow Empresa::rowOf(const Company& company) const {
    return {{company.code, company.name}, company.code + " " + company.name};
}

std::string Empresa::counts() const {
    const auto known = static_cast<std::size_t>(std::ranges::count_if(lines_, &Line::isKnown));
    return countOf(known, "empresa") + unreadCount(lines_.size() - known);
}

std::string Empresa::newRecordTitle() const {
    const auto code = proposedCode();
    return code ? "Nova empresa: receberá o código " + code->text()
                : "Todos os códigos de 01 a 99 já estão em uso";
}

Findings<Company> Empresa::doubtsAbout(const Company& typed, const Company& before) const {
    return doubtfulNumbers(kNumbers, typed, before);
}

bool Empresa::requireAcceptable(const Company& typed, const Line*) {
    return requireComplete(typed, incorrectData());
}

CompanyLine Empresa::lineUnder(const CompanyCode& code, Company typed, std::string existing) const {
    typed.code = code.text();
    typed.recordDate = dateText(at_.clock.today());
    return lineOf(typed, std::move(existing));
}

CompanyLine Empresa::newLine(const Company& typed, const Lines& lines) const {
    const auto code = lowestFreeCode(keysOf(lines));
    if (!code) throw Fault("no free company code", "Todos os códigos de 01 a 99 já estão em uso.");
    return lineUnder(*code, typed);
}

CompanyLine Empresa::changedLine(const Company& typed, const Line& before) const {
    return lineUnder(before.key().value(), typed, before.bytes);
}

std::size_t Empresa::employeesOf(const Line& line) const {
    return line.key() ? EmployeeRegister(at_.store(), *line.key()).load().size() : 0;
}

std::size_t Empresa::filesOf(const Line& line) const {
    const auto code = line.key();
    if (!code) return 0;
    const FolderNames names = namesIn(at_.store());
    return static_cast<std::size_t>(std::ranges::count_if(
        names, [&](const std::string& name) { return isRecordOfCompany(name, *code); }));
}

bool Empresa::confirmDeletion(std::size_t position, std::size_t employees) {
    const Message named =
        removalOf(position, alongWith(employees, "funcionário") +
                                alongWith(filesOf(lines_.at(position)), "arquivo"));
    const bool hasEmployees = employees > 0;
    if (!at_.person.agrees(named)) return false;
    const bool onlyCompany = option_ == DeleteOption::CompanyOnly;
    if (onlyCompany && hasEmployees && !at_.person.agrees(kHasEmployees)) return false;
    if ((!onlyCompany || hasEmployees) && !at_.person.agrees(kDeletesEmployees)) return false;
    Message certain = kCertain;
    certain.detail = named.detail;
    return at_.person.agrees(certain);
}

bool Empresa::remove(std::size_t position) {
    if (isFirst(lines_, position)) return refuse(kFirstCompany);
    return run(incorrectData(), [&] {
        const Line chosen = lines_.at(position);
        const std::size_t employees = employeesOf(chosen);
        const auto prepare = [&] {
            if (isFirst(read(), position) || employeesOf(chosen) != employees)
                throw changedElsewhere("company list");
            if (chosen.key())
                at_.keepStateBefore("excluir a empresa " + titleOf(lines_, chosen.key()));
        };
        return confirmDeletion(position, employees) &&
               erase(
                   position, [&](const Lines& remaining) { removeFilesOf(chosen, remaining); },
                   prepare);
    });
}

void Empresa::clearFor(const Line& added) {
    removeSettingsOfCompany(at_.store(), added.key().value());
}

void Empresa::removeFilesOf(const Line& gone, const Lines& remaining) {
    const auto code = gone.key();
    if (!code || findLine(remaining, *code)) return;
    removeRecordsOfCompany(at_.store(), *code);
    if (at_.session.company == code) at_.session.company.reset();
}

}  // namespace winvrx
