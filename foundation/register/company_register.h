#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/company.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kCompanyRegisterName = "01Empresa";

/// A line of the register. A line whose code is not two digits is kept as it stands and has no
/// code: it can be shown, but not selected or changed.
struct CompanyLine {
    std::string bytes;
    Company company;

    [[nodiscard]] std::optional<CompanyCode> code() const {
        return CompanyCode::parse(company.code);
    }
};

/// The lines of the register in file order; empty when there is no file.
[[nodiscard]] std::vector<CompanyLine> loadCompanies(const Store& store);

/// The same, but a missing register is first created with the sample company. A register that
/// cannot be read is not missing: FileFault, and it stays as it is.
[[nodiscard]] std::vector<CompanyLine> loadOrCreateCompanies(const Workplace& at);

/// The company of that code; nullopt when no line has it.
[[nodiscard]] std::optional<Company> findCompany(const Store& store, const CompanyCode& code);

void saveCompanies(const Store& store, const std::vector<CompanyLine>& lines);

/// "01 EMPRESA MODELO LTDA"; empty when no line has the code.
[[nodiscard]] std::string titleOf(const std::vector<CompanyLine>& companies,
                                  const std::optional<CompanyCode>& code);

/// The lowest two-digit code from "01" on that no line bears; nullopt when all 99 are taken.
[[nodiscard]] std::optional<CompanyCode> lowestFreeCode(const std::vector<CompanyLine>& lines);

}  // namespace winvrx
