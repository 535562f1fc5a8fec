#include "foundation/register/company_register.h"

#include <algorithm>

namespace winvrx {

std::vector<CompanyLine> loadOrCreateCompanies(const Workplace& at) {
    auto companies = companyFile(at.store());
    if (auto lines = companies.loadIfAny()) return *std::move(lines);
    const auto hold = holdFolder(at);
    if (!companies.loadIfAny()) companies.save({lineOf(sampleCompany(at.clock.today()))});
    return companies.load();
}

std::optional<Company> findCompany(const Store& store, const CompanyCode& code) {
    const auto lines = loadCompanies(store);
    const CompanyLine* line = findLine(lines, code);
    return line ? std::optional(line->record) : std::nullopt;
}

Company loadCompany(const Store& store, const CompanyCode& code) {
    if (auto company = findCompany(store, code)) return *company;
    throw Fault("company is not in the register",
                "A empresa selecionada não está no cadastro de empresas.");
}

const CompanyLine* firstCompany(const std::vector<CompanyLine>& lines) {
    const auto found = std::ranges::find_if(lines, &CompanyLine::isKnown);
    return found == lines.end() ? nullptr : &*found;
}

Message noCompany(const Workplace& at) {
    Message told = refusal("Aviso", "Cadastre Primeiro Uma Empresa!!");
    attemptQuietly(at.log, "company register not read", [&] {
        if (firstCompany(loadCompanies(at.store())))
            told.detail = "Selecione uma empresa na lista.";
    });
    return told;
}

std::string titleOf(const std::vector<CompanyLine>& companies,
                    const std::optional<CompanyCode>& code) {
    const CompanyLine* line = findLine(companies, code);
    return line ? code->text() + " " + line->record.name : std::string();
}

}  // namespace winvrx
