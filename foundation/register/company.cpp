#include "foundation/register/company.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

void putPart(std::string& text, std::string_view opening, std::string_view part) {
    const auto shown = trimmed(part);
    if (!shown.empty()) text.append(text.empty() ? "" : opening).append(shown);
}

}  // namespace

std::string addressText(const Company& company) {
    std::string text;
    putPart(text, "", company.address);
    putPart(text, " - ", company.district);
    putPart(text, " - ", company.city);
    putPart(text, "/", company.state);
    putPart(text, " - CEP ", company.postalCode);
    return text;
}

Company sampleCompany(Date today) {
    return {.code = "01",
            .name = "EMPRESA MODELO LTDA",
            .taxId = "123.456.789/0001-99",
            .address = "AV. BANDEIRANTES, SN",
            .district = "CENTRO",
            .recordDate = dateText(today),
            .city = "TAUBATE",
            .state = "SP",
            .postalCode = "12080-700",
            .telephone = "(99) 9999-9999",
            .stateRegistration = "123.456.789",
            .owner = "Fleipod",
            .ownerNationality = "Brasileiro",
            .ownerMaritalStatus = "Casado",
            .ownerProfession = "Administrador",
            .ownerIdentityCard = "1785236-9",
            .ownerTaxId = "999.999.999-77",
            .ownerAddress = "Rua Pedro Zapeline, 1425",
            .ownerDistrict = "Vitoria",
            .ownerPostalCode = "12099-000",
            .ownerCity = "CAÇADOR",
            .ownerState = "SC",
            .unionName = "SINDICATO S/A",
            .unionTaxId = "222.333.444/0001-33"};
}

}  // namespace winvrx
