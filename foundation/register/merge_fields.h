#pragma once

#include "foundation/desk/merge_words.h"
#include "foundation/register/company.h"
#include "foundation/register/employee.h"

// What company, employee and month give to a page. The names stand here once, for card headers,
// mirrors, labels, contracts and documents alike:
//
//   MergeWords words = mergeWords(company, employee);
//   putMonth(words, month);
//   words.filled("{nome} trabalha desde {admissao}.")

namespace winvrx {

/// Every word that the two registers give. Those of the company that an employee has too end in
/// "_empresa", those of its owner in "_proprietario".
[[nodiscard]] MergeWords mergeWords(const Company& company, const Employee& employee);

/// "mes", "março/2024", and "periodo", "01/03/2024 a 31/03/2024".
void putMonth(MergeWords& words, WorkMonth month);

}  // namespace winvrx
