#pragma once

#include <string>
#include <string_view>

// The numbers by which the state knows companies and people. Each carries check digits, so a slip
// of the finger can be seen while the number is typed. Points, dashes, bars and blanks may be
// left out or put anywhere.
//
//     checkCpf("529.982.247-25")      IdCheck::Valid
//     checkCnpj("12ABC34501DE35")     IdCheck::Valid, the alphanumeric form given out from 2026 on
//     checkCpf("529.982")             IdCheck::TooShort
//     punctuatedCpf("5299822")        "529.982.2"

namespace winvrx {

enum class IdCheck {
    Empty,     ///< nothing but punctuation
    TooShort,  ///< nothing wrong so far
    Valid,
    Wrong,  ///< too long, a character that has no place, or check digits that do not fit
};

/// Fourteen characters: twelve digits or letters and two check digits. Instrução Normativa RFB
/// 2.229/2024; the numeric form follows the same rule.
[[nodiscard]] IdCheck checkCnpj(std::string_view typed);

/// Eleven digits, the last two of them check digits.
[[nodiscard]] IdCheck checkCpf(std::string_view typed);

/// PIS, PASEP or NIT: eleven digits, the last one a check digit.
[[nodiscard]] IdCheck checkPis(std::string_view typed);

/// For a field that takes either: a CPF when it is one, else a CNPJ.
[[nodiscard]] IdCheck checkCnpjOrCpf(std::string_view typed);

/// The number with its points, bar and dash as far as it goes, letters in upper case; what cannot
/// be the beginning of such a number comes back as it is.
[[nodiscard]] std::string punctuatedCnpj(std::string_view typed);
[[nodiscard]] std::string punctuatedCpf(std::string_view typed);
/// Up to eleven digits as a CPF, more as a CNPJ.
[[nodiscard]] std::string punctuatedCnpjOrCpf(std::string_view typed);

}  // namespace winvrx
