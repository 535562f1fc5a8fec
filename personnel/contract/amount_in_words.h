#pragma once

#include "foundation/values/money.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// An amount as a contract writes it, every word with a capital. Blanks and commas are those of the
// rule: what it puts before or behind an empty part stays.
//
//     amountInWords({123'456})      "Mil, Duzentos e Trinta e Quatro Reais  e Cinquenta e Seis
//     Centavos"

namespace winvrx {

/// The words, each behind its key. A key that stands twice means its first entry.
inline constexpr std::array<std::string_view, 39> kNumberWords = {
    "#01=#Um",          "#02=#Dois",        "#03=#Três",          "#04=#Quatro",
    "#05=#Cinco",       "#06=#Seis",        "#07=#Sete",          "#08=#Oito",
    "#09=#Nove",        "#10=#Dez",         "#11=#Onze",          "#12=#Doze",
    "#13=#Treze",       "#14=#Quatorze",    "#15=#Quinze",        "#16=#Dezesseis",
    "#17=#Dezessete",   "#18=#Dezoito",     "#19=#Dezenove",      "#20=#Vinte",
    "#30=#Trinta",      "#40=#Quarenta",    "#50=#Cinquenta",     "#60=#Sessenta",
    "#70=#Setenta",     "#80=#Oitenta",     "#90=#Noventa",       "#100=#Cento",
    "#200=#Duzentos",   "#300=#Trezentos",  "#400=#Quatrocentos", "#500=#Quinhentos",
    "#600=#Seiscentos", "#700=#Setecentos", "#800=#Oitocentos",   "#900=#Novecentos",
    "#100=#Cem",        "#1000=#Mil",       "#,00=#Centavos"};

/// What fits the mask "00,000.00".
inline constexpr Money kGreatestInWords{9'999'999};

/// Requires an amount from nothing to kGreatestInWords.
[[nodiscard]] std::string amountInWords(Money amount);

/// The same as running text has it: "Mil, Duzentos e Trinta e Quatro Reais e Cinquenta e Seis
/// Centavos", "Mil Reais", "Um Real", "Cinquenta Centavos".
[[nodiscard]] std::string amountInProse(Money amount);

/// The amount typed, where it can be put into words.
[[nodiscard]] std::optional<Money> parseAmountForWords(std::string_view typed);

}  // namespace winvrx
