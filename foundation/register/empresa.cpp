#include "foundation/register/empresa.h"

#include "foundation/register/employee_register.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kConfirmInclude = question("INCLUSÃO", "Confirma a Inclusão?");
const Message kConfirmChange = question("ALTERAÇÃO", "Confirma a Alteração do Item Selecionado?");
const Message kFirstCompany = failure(
    "Excluindo Empresa",
    "ATENCAO!!! Não é Possível Excluir a Primeira Empresa. Você Pode Alterar os Dados Cadastrados "
    "nesta Empresa! ");
const Message kConfirmDelete =
    riskyQuestion("EXCLUSÃO", "Confirma a Exclusão do Item Selecionado?");
const Message kHasEmployees = warning(
    "CUIDADO!!! - Excluindo Empresa",
    "ATENCAO!!! Não é Possível Excluir agora. Existem Funcioários Cadastrados nesta Empresa! "
    "Deseja Excluir toda lista de Funcionário Incluindo desta Empresa Selecionada?");
const Message kDeletesEmployees = warning(
    "EXCLUIR", "Este Comando irá Exluir a Empresa e a Lista de Funcionarios. Deseja Continuar?");
const Message kCertain = warning("EXCLUIR", "Tem Certeza que Deseja Excluir o Item Selecionado?");

constexpr auto kChangedElsewhere =
    "O cadastro foi alterado por outro computador. Abra a tela novamente.";

CompanyLine lineOf(Company company, const CompanyCode& code, Date today,
                   std::string existing = {}) {
    company.code = code.text();
    company.recordDate = dateText(today);
    std::string bytes = encode(company, std::move(existing));
    return {bytes, decodeCompany(bytes)};
}

}  // namespace

Empresa::Empresa(const Workplace& at, Browser& browser) : at_(at), browser_(browser) {}

void Empresa::load() {
    (void)attempt(at_, incorrectData(), [this] { lines_ = loadOrCreateCompanies(at_); });
}

bool Empresa::include(Company typed) {
    if (!at_.person.agrees(kConfirmInclude)) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        auto lines = loadCompanies(at_.store());
        // An empty folder in the place of the one shown, as an unmounted drive leaves it.
        if (lines.empty() && !lines_.empty()) throw Fault("company list gone", kChangedElsewhere);
        const auto code = lowestFreeCode(lines);
        if (!code)
            throw Fault("no free company code", "Todos os códigos de 01 a 99 já estão em uso.");
        lines.push_back(lineOf(std::move(typed), *code, at_.clock.today()));
        save(std::move(lines));
    });
}

bool Empresa::change(std::size_t position, Company typed) {
    if (!at_.person.agrees(kConfirmChange)) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        auto lines = loadCompanies(at_.store());
        if (position >= lines.size() || lines[position].bytes != lines_.at(position).bytes)
            throw Fault("company list changed on disk", kChangedElsewhere);
        const auto code = lines[position].code();
        if (!code)
            throw Fault("company line without code: " + lines[position].company.code,
                        "Esta linha do cadastro não tem um código válido.");
        lines[position] = lineOf(std::move(typed), *code, at_.clock.today(), lines[position].bytes);
        save(std::move(lines));
    });
}

bool Empresa::hasEmployees(const CompanyLine& line) const {
    return line.code() && EmployeeRegister(at_.store(), *line.code()).hasEmployees();
}

bool Empresa::confirmsDeletion(bool hasEmployees, DeleteOption option) {
    if (!at_.person.agrees(kConfirmDelete)) return false;
    const bool onlyCompany = option == DeleteOption::CompanyOnly;
    if (onlyCompany && hasEmployees && !at_.person.agrees(kHasEmployees)) return false;
    if ((!onlyCompany || hasEmployees) && !at_.person.agrees(kDeletesEmployees)) return false;
    return at_.person.agrees(kCertain);
}

bool Empresa::remove(std::size_t position, DeleteOption option) {
    if (position == 0) {
        at_.person.tell(kFirstCompany);
        return false;
    }
    return attempt(at_, incorrectData(), [&] {
        const CompanyLine chosen = lines_.at(position);
        const bool hadEmployees = hasEmployees(chosen);
        if (!confirmsDeletion(hadEmployees, option)) return false;
        const auto hold = holdFolder(at_);
        auto lines = loadCompanies(at_.store());
        if (position >= lines.size() || lines[position].bytes != chosen.bytes ||
            hasEmployees(chosen) != hadEmployees)
            throw Fault("company list changed on disk", kChangedElsewhere);
        // A disk that refuses the register must do so before anything is gone. Then the files go
        // first: cut short, the command can be given again.
        save(lines);
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
        removeFilesOf(chosen, lines);
        save(std::move(lines));
        return true;
    });
}

void Empresa::removeFilesOf(const CompanyLine& gone, const std::vector<CompanyLine>& remaining) {
    const auto code = gone.code();
    const bool stillUsed =
        std::any_of(remaining.begin(), remaining.end(),
                    [&](const CompanyLine& line) { return line.code() == code; });
    if (!code || stillUsed) return;
    removeRecordsOfCompany(at_.store(), *code);
    if (at_.session.company == code) at_.session.company.reset();
}

bool Empresa::mayDiscardTyped() {
    return at_.person.agrees(discardTyped());
}

void Empresa::help() {
    openHelp(at_, browser_);
}

void Empresa::save(std::vector<CompanyLine> lines) {
    saveCompanies(at_.store(), lines);
    lines_ = std::move(lines);
}

}  // namespace winvrx
