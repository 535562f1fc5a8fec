#pragma once

#include "foundation/files/data_folder.h"
#include "personnel/pay/dated_table.h"
#include "personnel/pay/legal_figures.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

struct LegalTables {
    DatedTable<LegalAmount> minimumWage{"salário mínimo"};
    DatedTable<InssTable> inss{"tabela do INSS"};
    DatedTable<SalaryFamily> salaryFamily{"salário-família"};
    DatedTable<IncomeTaxTable> incomeTax{"tabela do IRRF"};
    DatedTable<LegalAmount> dependant{"dedução por dependente"};
    DatedTable<LegalAmount> simplifiedDiscount{"desconto simplificado"};
    DatedTable<TaxReduction> taxReduction{"redução do IRRF"};

    /// A sentence for each table that has no line of the month's own year, or none at all, for a
    /// payroll of `competence` paid on `paid`; empty when all have.
    [[nodiscard]] std::vector<std::string> warnings(WorkMonth competence, Date paid) const;
};

/// The files' names, in the program's folder "legal" and, with the user's own lines, in the data
/// folder.
inline constexpr std::string_view kLegalFiles[] = {
    "salario-minimo.txt",  "inss.txt",
    "salario-familia.txt", "irrf-tabela.txt",
    "irrf-dependente.txt", "irrf-desconto-simplificado.txt",
    "irrf-reducao.txt"};

/// Adds the lines of a file of that name. Throws LegalTableFault for a bad line and TextFault for
/// bytes that are no text; the tables are then as they were.
void addLegalLines(LegalTables& tables, std::string_view file, std::string_view bytes);

/// The delivered files of `folder`, each of which must stand there, and over them the user's own
/// lines of the data folder. Throws LegalTableFault, TextFault, FileFault.
[[nodiscard]] LegalTables loadLegalTables(const Store& store, const std::filesystem::path& folder);

}  // namespace winvrx
