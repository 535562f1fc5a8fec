#pragma once

#include "foundation/files/payroll_file.h"

#include <array>
#include <string_view>

namespace winvrx {

/// The runs in the order in which a screen offers them.
inline constexpr std::array kPayrollRuns = {PayrollRun::Month, PayrollRun::ThirteenthFirst,
                                            PayrollRun::ThirteenthSecond, PayrollRun::Vacation};

/// "PAGAMENTO SALÁRIO MENSAL", "13º SALÁRIO - 1º PARCELA" and the like.
[[nodiscard]] constexpr std::string_view captionOf(PayrollRun run) {
    constexpr std::array<std::string_view, kPayrollRuns.size()> kCaptions = {
        "PAGAMENTO SALÁRIO MENSAL", "13º SALÁRIO - 1º PARCELA", "13º SALÁRIO - 2º PARCELA",
        "PAGAMENTO DE FÉRIAS"};
    return kCaptions[static_cast<std::size_t>(run)];
}

}  // namespace winvrx
