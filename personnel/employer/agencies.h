#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"

#include <array>
#include <string_view>

namespace winvrx {

/// A page of the federal agencies that a payroll needs.
struct AgencyPage {
    std::string_view name;
    std::string_view says;  ///< what is found there
    std::string_view address;
};

/// The one table of their addresses.
inline constexpr std::array<AgencyPage, 5> kAgencyPages = {{
    {"INSS", "tabela de contribuição e salário-família",
     "https://www.gov.br/inss/pt-br/direitos-e-deveres/inscricao-e-contribuicao/"
     "tabela-de-contribuicao-mensal"},
    {"Receita Federal", "tabelas do imposto de renda",
     "https://www.gov.br/receitafederal/pt-br/assuntos/meu-imposto-de-renda/tabelas"},
    {"eSocial", "eventos do empregador e guia do doméstico (DAE)",
     "https://www.gov.br/esocial/pt-br"},
    {"FGTS Digital", "depósitos e guias do FGTS",
     "https://www.gov.br/trabalho-e-emprego/pt-br/servicos/empregador/fgtsdigital"},
    {"Ministério do Trabalho", "salário mínimo e normas",
     "https://www.gov.br/trabalho-e-emprego/pt-br"},
}};

/// Opens a page; told when no browser does.
bool openAgencyPage(const Workplace& at, Browser& browser, const AgencyPage& page);

}  // namespace winvrx
