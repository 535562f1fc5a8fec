#pragma once

#include "foundation/desk/command.h"
#include "foundation/files/line_file.h"
#include "foundation/register/company.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kCompanyRegisterName = "01Empresa";

using CompanyLine = StoredLine<Company>;

/// The company register: one for the data folder.
[[nodiscard]] inline LineFile<Company> companyFile(const Store& store) {
    return LineFile<Company>({store, kCompanyRegisterName});
}

/// The lines of the register in file order; empty when there is no file.
[[nodiscard]] inline std::vector<CompanyLine> loadCompanies(const Store& store) {
    return companyFile(store).load();
}

/// The same, but a missing register is first created with the sample company. A register that
/// cannot be read is not missing: FileFault, and it stays as it is.
[[nodiscard]] std::vector<CompanyLine> loadOrCreateCompanies(const Workplace& at);

/// The company of that code; nullopt when no line has it.
[[nodiscard]] std::optional<Company> findCompany(const Store& store, const CompanyCode& code);

/// The same; throws Fault when no line has it.
[[nodiscard]] Company loadCompany(const Store& store, const CompanyCode& code);

/// The first line that is understood, of the company that cannot be deleted; nullptr without one.
[[nodiscard]] const CompanyLine* firstCompany(const std::vector<CompanyLine>& lines);

/// "Cadastre Primeiro Uma Empresa!!", titled "Aviso": what a screen says that needs a company.
/// Where one is registered, that it is to be selected.
[[nodiscard]] Message noCompany(const Workplace& at);

/// "01 EMPRESA MODELO LTDA"; empty when no line has the code.
[[nodiscard]] std::string titleOf(const std::vector<CompanyLine>& companies,
                                  const std::optional<CompanyCode>& code);

}  // namespace winvrx
