#pragma once

#include "foundation/register/employee.h"

#include <string>
#include <string_view>

namespace winvrx {

/// What PDF files of a run have in common in their names: "CARTÃO PONTO", "03-2024".
struct PdfNaming {
    std::string title;
    std::string period;  ///< as file names have it
};

/// "CARTÃO PONTO EMPRESA MODELO LTDA 03-2024.pdf": a plain file name whatever `subject` holds.
[[nodiscard]] std::string pdfNameOf(std::string_view subject, const PdfNaming& naming);

/// "CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf". The code keeps employees of one name apart.
[[nodiscard]] std::string pdfNameOf(const Employee& employee, const PdfNaming& naming);

}  // namespace winvrx
