#pragma once

#include "foundation/register/employee.h"

#include <string>

// What the register asks of an employee's data before it records them.

namespace winvrx {

/// "Nome, Turno": the captions of required fields that are empty.
[[nodiscard]] std::string missingFields(const Employee& typed);

/// What is wrong with the texts that have a form of their own, the admission date aside; empty when
/// nothing is.
[[nodiscard]] std::string incorrectField(const Employee& typed);

/// "O código 012 já pertence a outro funcionário."
[[nodiscard]] std::string takenCode(const Employee& typed);

/// "\"31/02/2024\" não é uma data do calendário."
[[nodiscard]] std::string noSuchDate(const std::string& text);

}  // namespace winvrx
