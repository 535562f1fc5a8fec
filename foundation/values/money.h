#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// An amount in reais, held as whole cents.
struct Money {
    std::int64_t cents = 0;

    [[nodiscard]] auto operator<=>(const Money&) const = default;
};

/// "1.234,56", "1234,5", "1234" and the same behind "R$"; nullopt for anything else, negative
/// amounts and amounts of more than twelve digits before the comma included.
[[nodiscard]] std::optional<Money> parseMoney(std::string_view text);

/// "1.234,56", below zero "-1.234,56".
[[nodiscard]] std::string moneyText(Money money);

}  // namespace winvrx
