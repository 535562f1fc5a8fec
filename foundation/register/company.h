#pragma once

#include "foundation/files/record_fields.h"
#include "foundation/values/codes.h"
#include "foundation/values/date.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// An employer: one line of the company register. Texts are UTF-8 and trimmed.
struct Company {
    std::string code;  ///< two characters; a CompanyCode when the record is well-formed
    std::string name;
    std::string taxId;
    std::string address;
    std::string district;
    std::string recordDate;  ///< "dd/mm/yyyy", the day on which the record was last written
    std::string city;
    std::string state;
    std::string postalCode;
    std::string telephone;
    std::string stateRegistration;
    std::string owner;
    std::string ownerNationality;
    std::string ownerMaritalStatus;
    std::string ownerProfession;
    std::string ownerIdentityCard;
    std::string ownerTaxId;
    std::string ownerAddress;
    std::string ownerDistrict;
    std::string ownerPostalCode;
    std::string ownerCity;
    std::string ownerState;
    std::string unionName;
    std::string unionTaxId;

    [[nodiscard]] bool operator==(const Company&) const = default;
};

using CompanyField = RecordField<Company>;

/// The layout of a company line, 549 characters. The one place that knows it.
inline constexpr std::array kCompanyFields = {
    CompanyField{&Company::code, {1, 3}, "Código"},
    CompanyField{&Company::name, {4, 68}, "Empregador ou Razão Social", true},
    CompanyField{&Company::taxId, {72, 19}, "CNPJ/CPF"},
    CompanyField{&Company::address, {91, 30}, "Endereço/Nº"},
    CompanyField{&Company::district, {121, 17}, "Bairro"},
    CompanyField{&Company::recordDate, {138, 10}, "Data do Registro"},
    CompanyField{&Company::city, {148, 18}, "Cidade"},
    CompanyField{&Company::state, {166, 2}, "UF"},
    CompanyField{&Company::postalCode, {168, 20}, "CEP"},
    CompanyField{&Company::telephone, {188, 20}, "Telefone"},
    CompanyField{&Company::stateRegistration, {208, 20}, "Inscrição Estadual"},
    CompanyField{&Company::owner, {228, 30}, "Proprietário"},
    CompanyField{&Company::ownerNationality, {258, 20}, "Nacionalidade"},
    CompanyField{&Company::ownerMaritalStatus, {278, 20}, "Estado Civil"},
    CompanyField{&Company::ownerProfession, {298, 50}, "Profissão"},
    CompanyField{&Company::ownerIdentityCard, {348, 20}, "RG"},
    CompanyField{&Company::ownerTaxId, {368, 20}, "CPF"},
    CompanyField{&Company::ownerAddress, {388, 40}, "Domicilio/Nº"},
    CompanyField{&Company::ownerDistrict, {428, 20}, "Bairro"},
    CompanyField{&Company::ownerPostalCode, {448, 10}, "CEP"},
    CompanyField{&Company::ownerCity, {458, 20}, "Cidade"},
    CompanyField{&Company::ownerState, {478, 2}, "Estado"},
    CompanyField{&Company::unionName, {480, 50}, "Nome da Entidade Sindical (Sindicato)"},
    CompanyField{&Company::unionTaxId, {530, 20}, "CNPJ (Sindicato)"},
};

inline constexpr std::size_t kCompanyWidth = 549;

static_assert(isContiguous(kCompanyFields, kCompanyWidth));

template <>
struct RecordLayout<Company> : LineLayout<kCompanyFields, kCompanyWidth> {};

[[nodiscard]] inline std::optional<CompanyCode> keyOf(const Company& company) {
    return CompanyCode::parse(company.code);
}

/// "RUA DAS FLORES, 10 - CENTRO - SÃO PAULO/SP - CEP 01310-100", without what is not on record.
[[nodiscard]] std::string addressText(const Company& company);

/// The company that a fresh register begins with; `today` becomes its record date.
[[nodiscard]] Company sampleCompany(Date today);

}  // namespace winvrx
