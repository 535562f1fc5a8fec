#pragma once

#include "foundation/register/employee.h"
#include "foundation/values/date.h"

#include <string>
#include <string_view>

namespace winvrx {

/// "CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf": a plain file name whatever `subject` holds.
[[nodiscard]] std::string pdfNameOf(std::string_view subject, WorkMonth month);

/// "CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf". The code keeps employees of one name apart.
[[nodiscard]] std::string pdfNameOf(const Employee& employee, WorkMonth month);

}  // namespace winvrx
