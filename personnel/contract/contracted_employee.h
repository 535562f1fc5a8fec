#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee.h"

#include <optional>

namespace winvrx {

/// Why no papers may be printed for the employee, the first that holds: no company is selected; no
/// employee (nullptr, or one without a code), in the words of `noEmployee`; the employee is
/// inactive by his leave file, which the papers of the contract's end take (`evenInactive`); no
/// contract has been generated. To be asked under `attempt`: throws FileFault.
[[nodiscard]] std::optional<Message> paperRefusal(const Workplace& at, const Employee* employee,
                                                  const Message& noEmployee,
                                                  bool evenInactive = false);
/// Tells it; true when there is none.
[[nodiscard]] bool requireContractedEmployee(const Workplace& at, const Employee* employee,
                                             const Message& noEmployee, bool evenInactive = false);

/// "Pesquise e Selecione um Funcionário na Lista! ", what the reports screen says.
[[nodiscard]] Message searchAndSelectEmployee();
/// "É necessário Selecioar um Funcionário na Lista!!", what the documents screen says.
[[nodiscard]] Message employeeIsNeeded();

}  // namespace winvrx
