#include "foundation/register/merge_fields.h"

#include <array>

namespace winvrx {

namespace {

template <typename Record>
struct Word {
    std::string_view name;
    std::string Record::*member;
};

constexpr std::array kCompanyWords = {
    Word<Company>{"razao", &Company::name},
    Word<Company>{"cnpj", &Company::taxId},
    Word<Company>{"endereco_empresa", &Company::address},
    Word<Company>{"bairro_empresa", &Company::district},
    Word<Company>{"cidade_empresa", &Company::city},
    Word<Company>{"uf_empresa", &Company::state},
    Word<Company>{"cep_empresa", &Company::postalCode},
    Word<Company>{"telefone_empresa", &Company::telephone},
    Word<Company>{"inscricao_estadual", &Company::stateRegistration},
    Word<Company>{"proprietario", &Company::owner},
    Word<Company>{"nacionalidade_proprietario", &Company::ownerNationality},
    Word<Company>{"estado_civil_proprietario", &Company::ownerMaritalStatus},
    Word<Company>{"profissao_proprietario", &Company::ownerProfession},
    Word<Company>{"rg_proprietario", &Company::ownerIdentityCard},
    Word<Company>{"cpf_proprietario", &Company::ownerTaxId},
    Word<Company>{"endereco_proprietario", &Company::ownerAddress},
    Word<Company>{"bairro_proprietario", &Company::ownerDistrict},
    Word<Company>{"cep_proprietario", &Company::ownerPostalCode},
    Word<Company>{"cidade_proprietario", &Company::ownerCity},
    Word<Company>{"uf_proprietario", &Company::ownerState},
    Word<Company>{"sindicato", &Company::unionName},
    Word<Company>{"cnpj_sindicato", &Company::unionTaxId},
};

constexpr std::array kEmployeeWords = {
    Word<Employee>{"codigo", &Employee::code},
    Word<Employee>{"nome", &Employee::name},
    Word<Employee>{"funcao", &Employee::function},
    Word<Employee>{"cbo", &Employee::occupation},
    Word<Employee>{"endereco", &Employee::address},
    Word<Employee>{"bairro", &Employee::district},
    Word<Employee>{"cidade", &Employee::city},
    Word<Employee>{"uf", &Employee::state},
    Word<Employee>{"cep", &Employee::postalCode},
    Word<Employee>{"telefone", &Employee::telephone},
    Word<Employee>{"rg", &Employee::identityCard},
    Word<Employee>{"cpf", &Employee::taxId},
    Word<Employee>{"ctps", &Employee::workBooklet},
    Word<Employee>{"pis", &Employee::socialId},
    Word<Employee>{"registro", &Employee::registration},
    Word<Employee>{"ficha", &Employee::sheet},
    Word<Employee>{"nascimento", &Employee::birthDate},
    Word<Employee>{"dependentes", &Employee::dependants},
    Word<Employee>{"admissao", &Employee::admission},
    Word<Employee>{"demissao", &Employee::dismissal},
    Word<Employee>{"salario", &Employee::salary},
    Word<Employee>{"banco", &Employee::bank},
};

}  // namespace

MergeWords mergeWords(const Company& company, const Employee& employee) {
    MergeWords words;
    for (const auto& word : kCompanyWords)
        words.put(word.name, company.*word.member);
    for (const auto& word : kEmployeeWords)
        words.put(word.name, employee.*word.member);
    words.put("descanso", std::string(weekdayName(weeklyRestOf(employee))));
    return words;
}

void putMonth(MergeWords& words, WorkMonth month) {
    words.put("mes", monthTitle(month));
    words.put("periodo", dateText(firstDay(month)) + " a " + dateText(lastDay(month)));
}

}  // namespace winvrx
