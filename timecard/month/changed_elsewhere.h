#pragma once

#include <string_view>

namespace winvrx {

/// Explains why a command on an employee's records stopped: they are not what the screen showed.
inline constexpr std::string_view kChangedElsewhere =
    "Este registro foi alterado por outro computador. Selecione o funcionário novamente.";

}  // namespace winvrx
