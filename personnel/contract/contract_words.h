#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/register/company.h"
#include "foundation/register/merge_fields.h"
#include "personnel/contract/contract.h"

#include <string>

namespace winvrx {

/// The file with the contract's text, "contrato-experiencia.txt". Requires a known kind.
[[nodiscard]] std::string contractTemplateName(const Contract& contract);

/// What the text of a contract may name: the words of the registers, of which "registro", "ficha"
/// and "salario" are the contract's where it has them; "tipo_contrato", "inicio",
/// "dias_experiencia", "fim_experiencia", "dias_prorrogacao", "fim_prorrogacao", "fim_prazo",
/// "motivo", "local_trabalho", "horario", "salario_extenso", "estabelecimento",
/// "data_assinatura", "data_extenso", "mes_assinatura" and "ano_assinatura".
[[nodiscard]] MergeWords contractWords(const Company& company, const Employee& employee,
                                       const Contract& contract);

/// A contract for an employee without one: of indefinite duration from his admission on, signed
/// then, with his salary and the times of his standard schedule. Place of work and kind of
/// establishment are those of the company's contract recorded last by employee code, else the
/// company's address. Throws FileFault.
[[nodiscard]] Contract proposedContract(const Store& store, const Company& company,
                                        const EmployeeKey& key, const Employee& employee);

}  // namespace winvrx
